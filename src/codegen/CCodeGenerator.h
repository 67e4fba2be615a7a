#pragma once

#include "codegen/CodeBuffer.h"
#include "model/ActivityKind.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace flowloom {

class Activity;
class Process;
class Processes;

// Turns one process into the text of a VBA macro that runs it through the
// run-time library. With a processes file name the macro only names the
// process and finds it in that file at run time; without one it rebuilds the
// process object by object. The generator checks nothing: it writes the model
// as it stands. Failures are reported under "CGenerateCode" and the emitter's
// name, and what was written before them stays.
class CCodeGenerator {
public:
    // The root object, for the options that some activities bake into the macro.
    void SetProcesses(std::shared_ptr<const Processes> processes) { processes_ = std::move(processes); }

    // Generates the macro, shows it in the text window when it is not empty,
    // and returns it.
    std::string GenerateCode(const std::shared_ptr<const Process>& process, const std::string& processesFile);

    const std::string& Result() const noexcept { return result_; }

private:
    std::string XmlModeCode() const;
    std::string ClassesModeCode();
    void SetDatabases();
    void MemeberCode(std::string_view kind);
    void SetProcess();
    void SetDatasources();
    void SetDocuments();
    void SetActivities(ActivityKind kind);
    void EmitActivity(const Activity& activity, std::int32_t count);

    std::shared_ptr<const Processes> processes_;
    std::shared_ptr<const Process> process_;
    std::string processesFile_;
    std::string result_;
    std::int32_t fieldValueCounter_ = 0;

    CodeBuffer declarations_;
    CodeBuffer setUp_;
    CodeBuffer cleanUp_;
    CodeBuffer databaseSetUp_;
};

// The frame every macro sits in, with "{ProcedureName}" and "{OtherCode}"
// to fill; its lines are padded with blanks, which belong to the text.
const std::string& FrameTemplate();

}  // namespace flowloom
