// Loads arbitrary bytes as a processes file, then writes the model back and
// loads that text once more. Loading must never crash, leak or hang; what the
// reader takes, a conformant parser (libxml2) takes too; and what the writer
// makes is well-formed for libxml2 and always loads.
#include "FuzzSupport.h"

#include "app/XmlDocument.h"
#include "model/Processes.h"
#include "support/Prompts.h"
#include "testsupport/XmlReferee.h"

#include <cstdint>
#include <string>

namespace {

// libxml2 stops at a nesting depth of its own choosing, which is no rule of XML.
bool RefusedForItsOwnLimits(const std::string& fault) { return fault.find("Excessive depth") != std::string::npos; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static flowloom::SilentPrompts silent;
    flowloom::SetCurrentPrompts(&silent);
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (flowloom::XmlDocument().LoadXml(bytes))
        if (auto fault = flowloom::test::ConformantParserFault(bytes); fault && !RefusedForItsOwnLimits(*fault))
            __builtin_trap();

    const auto& folder = flowloom::fuzz::WorkFolder("flowloom-fuzz");
    const auto file = folder / "processes.xml";
    flowloom::fuzz::WriteFile(file, bytes);
    auto processes = flowloom::Processes::Create();
    processes->Load(file.string());
    const std::string xml = processes->XML();
    processes->Dispose();
    if (flowloom::test::ConformantParserFault(xml)) __builtin_trap();

    flowloom::fuzz::WriteFile(file, xml);
    auto again = flowloom::Processes::Create();
    again->Load(file.string());
    if (again->Complete() != flowloom::Processes::Loaded) __builtin_trap();
    again->Dispose();
    flowloom::fuzz::RemoveBackups(folder);
    return 0;
}
