// verify and verify-all: the report the Verify command would show, on stdout.
#include "cli/CliContext.h"

#include "model/Process.h"
#include "model/Processes.h"
#include "verify/ProcessVerifier.h"

namespace flowloom::cli {

namespace {

// Verifies in the gathering mode and writes the report, or "Everything is
// Ok" when nothing was found; true when something was.
bool WriteReport(Context& ctx, const std::shared_ptr<Process>& process) {
    ProcessVerifier verifier(true);
    verifier.Run(process);
    if (!verifier.HasVerifyErrors()) {
        ctx.out << "Everything is Ok\r\n";
        return false;
    }
    ctx.out << VerifyReportText(verifier.Findings());
    return true;
}

}  // namespace

int VerifyCommand(Context& ctx) {
    if (!ExpectArgs(ctx, 2, "verify FILE PROCESS")) return kUsage;
    int status = kOk;
    const auto processes = LoadFile(ctx, ctx.args[1], status);
    if (!processes) return kUsage;
    const auto process = FindProcess(ctx, *processes, ctx.args[2]);
    if (!process) return kUsage;
    const bool found = WriteReport(ctx, process);
    return found || LoadRewriteFailed(*processes) ? kProblem : kOk;
}

int VerifyAllCommand(Context& ctx) {
    if (!ExpectArgs(ctx, 1, "verify-all FILE")) return kUsage;
    int status = kOk;
    const auto processes = LoadFile(ctx, ctx.args[1], status);
    if (!processes) return kUsage;
    bool found = false;
    for (const auto& process : processes->Snapshot()) {
        ctx.out << "== " << process->name() << "\r\n";
        found = WriteReport(ctx, process) || found;
    }
    return found || LoadRewriteFailed(*processes) ? kProblem : kOk;
}

}  // namespace flowloom::cli
