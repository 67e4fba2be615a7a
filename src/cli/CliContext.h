#pragma once

#include "cli/CliPrompts.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace flowloom {
class Process;
class Processes;
}  // namespace flowloom

namespace flowloom::cli {

inline constexpr int kOk = 0;
inline constexpr int kProblem = 1;
inline constexpr int kUsage = 2;

// What a command gets: its arguments (the command word first), the streams
// and the prompts that turn boxes into lines.
struct Context {
    const std::vector<std::string>& args;
    std::ostream& out;
    std::ostream& err;
    CliPrompts& prompts;
};

// Loads FILE as the designer's Open does; nullptr (with the reason on
// stderr and `status` kUsage) when it could not be read. Otherwise `status`
// is kProblem when loading showed a message or reported an error.
std::shared_ptr<Processes> LoadFile(Context& ctx, const std::string& file, int& status);

// Whether loading had to write the file back (the version step) and could not:
// a command that did its work all the same ends with kProblem.
bool LoadRewriteFailed(const Processes& processes);

// The process whose name equals `name` without regard to case; nullptr with
// a line on stderr when there is none.
std::shared_ptr<Process> FindProcess(Context& ctx, const Processes& processes, const std::string& name);

// Whether the command has exactly `count` arguments; prints the usage if not.
bool ExpectArgs(Context& ctx, std::size_t count, const char* usage);

int VerifyCommand(Context& ctx);
int VerifyAllCommand(Context& ctx);
int CodegenCommand(Context& ctx);
int ShowCommand(Context& ctx);
int SetCommand(Context& ctx);

}  // namespace flowloom::cli
