#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace torvane::bench {

// Runs `ours` and `raw` by turns, after a warm-up of each, and prints the ratio of their medians. Running by turns lets
// a slow moment of a shared machine fall on both.
template <typename Ours, typename Raw>
void compare(const char* name, double limit, int rounds, Ours ours, Raw raw) {
    using Clock = std::chrono::steady_clock;
    const auto milliseconds = [](auto& work) {
        const auto start = Clock::now();
        work();
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    };
    const auto median = [](std::vector<double>& times) {
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    };
    ours();
    raw();
    std::vector<double> oursTimes;
    std::vector<double> rawTimes;
    for (int i = 0; i < rounds; ++i) {
        oursTimes.push_back(milliseconds(ours));
        rawTimes.push_back(milliseconds(raw));
    }
    const double oursMedian = median(oursTimes);
    const double rawMedian = median(rawTimes);
    std::printf("%-44s ratio %5.2f (limit %.1f)  ours %8.3f ms  raw %8.3f ms%s\n", name, oursMedian / rawMedian, limit,
                oursMedian, rawMedian, oursMedian > limit * rawMedian ? "  OVER" : "");
    std::fflush(stdout);
}

}  // namespace torvane::bench
