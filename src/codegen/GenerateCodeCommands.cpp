#include "codegen/GenerateCodeCommands.h"

#include "codegen/CCodeGenerator.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/Prompts.h"

namespace flowloom {

std::string GenerateCodeWithoutXML(const std::shared_ptr<Processes>& processes, const std::shared_ptr<Process>& process) {
    CCodeGenerator generator;
    generator.SetProcesses(processes);
    return generator.GenerateCode(process, {});
}

std::optional<std::string> GenerateCodeWithXML(const std::shared_ptr<Processes>& processes,
                                               const std::shared_ptr<Process>& process) {
    const std::string file = processes ? processes->ProcessesFile() : std::string();
    if (file.empty()) {
        MsgBox("XML file is not saved.", msgbox::Exclamation);
        return std::nullopt;
    }
    if (process->name().empty()) {
        MsgBox("New process is not saved with name.", msgbox::Exclamation);
        return std::nullopt;
    }
    // The macro reads everything from the file, so the generator needs no root.
    CCodeGenerator generator;
    return generator.GenerateCode(process, file);
}

}  // namespace flowloom
