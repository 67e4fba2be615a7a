// Loads arbitrary bytes as a message catalogue and reads texts from it.
#include "app/CXmlMessages.h"
#include "support/Prompts.h"

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static flowloom::SilentPrompts silent;
    flowloom::SetCurrentPrompts(&silent);
    static const auto file =
        std::filesystem::temp_directory_path() / ("flowloom-fuzz-messages-" + std::to_string(::getpid()) + ".xml");
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    flowloom::CXmlMessages messages;
    messages.Load(file.string());
    for (const auto& text : messages.Messages()) (void)messages.GetMessage(*text);
    (void)messages.GetMessage("");
    return 0;
}
