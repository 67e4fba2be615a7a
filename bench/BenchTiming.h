#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace flowloom::bench {

// The median time of `repetitions` runs of `work`, in milliseconds.
inline double MedianMs(int repetitions, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace flowloom::bench
