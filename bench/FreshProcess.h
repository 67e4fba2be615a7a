#pragma once

#include <string>
#include <vector>

namespace flowloom::bench {

// What a program run in a fresh process took: the wall time from the start
// to its end, its peak resident memory and what it printed (unless its
// output was thrown away).
struct ChildRun {
    double wallMs = 0;
    long peakKb = 0;
    int status = -1;
    std::string output;
};

// Runs `argv` (argv[0] a path) with standard output captured, or sent to
// /dev/null when `discardOutput`; waits for it.
ChildRun RunFresh(const std::vector<std::string>& argv, bool discardOutput);

}  // namespace flowloom::bench
