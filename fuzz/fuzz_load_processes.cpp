// Loads arbitrary bytes as a processes file, then writes the model back and
// loads that text once more: loading must never crash, leak or hang, and
// what the writer produces must always load.
#include "FuzzSupport.h"

#include "model/Processes.h"
#include "support/Prompts.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static flowloom::SilentPrompts silent;
    flowloom::SetCurrentPrompts(&silent);
    const auto& folder = flowloom::fuzz::WorkFolder("flowloom-fuzz");
    const auto file = folder / "processes.xml";
    flowloom::fuzz::WriteFile(file, {reinterpret_cast<const char*>(data), size});
    auto processes = flowloom::Processes::Create();
    processes->Load(file.string());
    const std::string xml = processes->XML();
    processes->Dispose();

    flowloom::fuzz::WriteFile(file, xml);
    auto again = flowloom::Processes::Create();
    again->Load(file.string());
    if (again->Complete() != flowloom::Processes::Loaded) __builtin_trap();
    again->Dispose();
    flowloom::fuzz::RemoveBackups(folder);
    return 0;
}
