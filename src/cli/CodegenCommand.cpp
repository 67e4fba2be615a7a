// codegen: the macro the Generate Code commands would show, on stdout.
#include "cli/CliContext.h"

#include "codegen/CCodeGenerator.h"
#include "codegen/GenerateCodeCommands.h"
#include "model/Process.h"
#include "model/Processes.h"

#include <filesystem>

namespace flowloom::cli {

namespace {

constexpr const char* kUsageText = "codegen FILE PROCESS [--mode classes|xml]";

// The mode from "--mode M" or "--mode=M"; "" when the arguments are wrong.
std::string ModeOf(const std::vector<std::string>& args) {
    if (args.size() == 3) return "classes";
    if (args.size() == 5 && args[3] == "--mode") return args[4];
    if (args.size() == 4 && args[3].rfind("--mode=", 0) == 0) return args[3].substr(7);
    return {};
}

}  // namespace

int CodegenCommand(Context& ctx) {
    const std::string mode = ModeOf(ctx.args);
    if (mode != "classes" && mode != "xml") {
        ctx.err << "usage: flowloom-cli " << kUsageText << '\n';
        return kUsage;
    }
    int status = kOk;
    const auto processes = LoadFile(ctx, ctx.args[1], status);
    if (!processes) return kUsage;
    const auto process = FindProcess(ctx, *processes, ctx.args[2]);
    if (!process) return kUsage;
    // The generated text reaches stdout through the text window of the prompts.
    const int loaded = LoadRewriteFailed(*processes) ? kProblem : kOk;
    if (mode == "classes") {
        GenerateCodeWithoutXML(processes, process);
        return loaded;
    }
    std::error_code ec;
    const auto absolute = std::filesystem::absolute(ctx.args[1], ec);
    processes->SetProcessesFile(ec ? ctx.args[1] : absolute.lexically_normal().string());
    return GenerateCodeWithXML(processes, process) ? loaded : kProblem;
}

}  // namespace flowloom::cli
