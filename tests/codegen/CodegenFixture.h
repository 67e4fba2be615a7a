#pragma once

#include "codegen/CCodeGenerator.h"
#include "model/ModelFixture.h"
#include "model/Process.h"

#include <string>

namespace flowloom::test {

// Loads a processes file and generates macros from it, as the menu commands do.
class CodegenFixture : public ModelFixture {
protected:
    // `body`: the Process element and whatever else the file holds.
    std::shared_ptr<Process> Load(const std::string& body) {
        processes = LoadText(Document(body));
        return processes->Item(1);
    }

    // The macro of the classes mode, with the process given as XML.
    std::string Classes(const std::string& body) {
        const auto process = Load(body);
        CCodeGenerator generator;
        generator.SetProcesses(processes);
        return generator.GenerateCode(process, {});
    }

    std::shared_ptr<Processes> processes;
};

// The lines of a macro, without their CR LF.
std::vector<std::string> Lines(const std::string& macro);

// Whether the macro has a line equal to `line` (blanks of the indent included).
bool HasLine(const std::string& macro, const std::string& line);

}  // namespace flowloom::test
