#include "FreshProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>

extern char** environ;

namespace flowloom::bench {

namespace {

// The file actions of the child: stdout to the pipe or to /dev/null.
class StdoutRedirect {
public:
    StdoutRedirect(bool discard, int pipeWrite, int pipeRead) {
        posix_spawn_file_actions_init(&actions_);
        if (discard) {
            posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        } else {
            posix_spawn_file_actions_adddup2(&actions_, pipeWrite, STDOUT_FILENO);
            posix_spawn_file_actions_addclose(&actions_, pipeRead);
        }
    }
    ~StdoutRedirect() { posix_spawn_file_actions_destroy(&actions_); }
    StdoutRedirect(const StdoutRedirect&) = delete;
    StdoutRedirect& operator=(const StdoutRedirect&) = delete;
    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

}  // namespace

ChildRun RunFresh(const std::vector<std::string>& argv, bool discardOutput) {
    ChildRun run;
    std::array<int, 2> fds{-1, -1};
    if (!discardOutput && pipe(fds.data()) != 0) return run;
    std::vector<char*> args;
    for (const auto& a : argv) args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    const StdoutRedirect redirect(discardOutput, fds[1], fds[0]);
    const auto start = std::chrono::steady_clock::now();
    pid_t pid = -1;
    const int spawned = posix_spawn(&pid, args[0], redirect.get(), nullptr, args.data(), environ);
    if (!discardOutput) close(fds[1]);
    if (spawned != 0) {
        if (!discardOutput) close(fds[0]);
        return run;
    }
    if (!discardOutput) {
        std::array<char, 4096> buffer{};
        for (ssize_t n; (n = read(fds[0], buffer.data(), buffer.size())) > 0;)
            run.output.append(buffer.data(), static_cast<std::size_t>(n));
        close(fds[0]);
    }
    rusage usage{};
    int status = 0;
    wait4(pid, &status, 0, &usage);
    run.wallMs = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    run.peakKb = usage.ru_maxrss;
    run.status = status;
    return run;
}

}  // namespace flowloom::bench
