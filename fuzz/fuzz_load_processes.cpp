// Loads arbitrary bytes as a processes file, then writes the model back and
// loads that text once more: loading must never crash, leak or hang, and
// what the writer produces must always load.
#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/Prompts.h"

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

std::filesystem::path WorkFolder() {
    static const std::filesystem::path folder = [] {
        auto path = std::filesystem::temp_directory_path() / ("flowloom-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        flowloom::SetProgramFolder(path);  // errorlog.txt and templates stay here
        return path;
    }();
    return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static flowloom::SilentPrompts silent;
    flowloom::SetCurrentPrompts(&silent);
    const auto file = WorkFolder() / "processes.xml";
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    auto processes = flowloom::Processes::Create();
    processes->Load(file.string());
    const std::string xml = processes->XML();
    processes->Dispose();

    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out << xml;
    }
    auto again = flowloom::Processes::Create();
    again->Load(file.string());
    if (again->Complete() != flowloom::Processes::Loaded) __builtin_trap();
    again->Dispose();

    // Backups of the version step pile up otherwise.
    for (const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
        if (entry.path().extension() == ".bak") std::filesystem::remove(entry.path());
    return 0;
}
