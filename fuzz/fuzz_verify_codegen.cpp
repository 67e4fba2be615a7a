// Loads arbitrary bytes as a processes file, verifies every process in the
// gathering mode and generates its macro in both modes: neither may crash,
// leak or hang on any model the reader builds, and every macro keeps its frame.
#include "FuzzSupport.h"

#include "codegen/CCodeGenerator.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/Printers.h"
#include "support/Prompts.h"
#include "verify/ProcessVerifier.h"

#include <cstdint>
#include <string>
#include <vector>

namespace {

// One fixed printer, so that runs do not wait on the printing service.
class FixedPrinters : public flowloom::PrinterSource {
public:
    bool Enumerate(std::vector<std::string>& names) override {
        names = {"Office laser"};
        return true;
    }
};

bool KeepsFrame(const std::string& macro) {
    const std::string end = "End Sub" + std::string(68, ' ') + "\r\n";
    return macro.rfind("'This macro code", 0) == 0 && macro.size() >= end.size() &&
           macro.compare(macro.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static flowloom::SilentPrompts silent;
    flowloom::SetCurrentPrompts(&silent);
    static FixedPrinters printers;
    flowloom::SetPrinterSource(&printers);
    const auto& folder = flowloom::fuzz::WorkFolder("flowloom-fuzz-codegen");
    const auto file = folder / "processes.xml";
    flowloom::fuzz::WriteFile(file, {reinterpret_cast<const char*>(data), size});
    auto processes = flowloom::Processes::Create();
    processes->Load(file.string());
    for (const auto& process : processes->Snapshot()) {
        flowloom::ProcessVerifier verifier(true);
        verifier.Run(process);

        flowloom::CCodeGenerator classes;
        classes.SetProcesses(processes);
        if (!KeepsFrame(classes.GenerateCode(process, {}))) __builtin_trap();
        flowloom::CCodeGenerator xml;
        if (!KeepsFrame(xml.GenerateCode(process, file.string()))) __builtin_trap();
    }
    processes->Dispose();
    flowloom::fuzz::RemoveBackups(folder);
    return 0;
}
