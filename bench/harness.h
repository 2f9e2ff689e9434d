#pragma once

#include <chrono>
#include <concepts>
#include <string>
#include <type_traits>
#include <vector>

namespace torvane::bench {

double median(std::vector<double> values);

// What a figure may come to: `least`, or `ratio` of the same work without us where that is more.
struct Mark {
    double least = 0;
    double ratio = 0;
};

// Prints a line: a figure of ours, its mark, and beside it that of the same work without us (0: there is none).
void print(const std::string& name, Mark mark, double ours, double raw, const char* unit = "ms");
// Whether every figure so far has kept its mark.
bool allKept();

// The time that a work takes, in milliseconds; a work that gives a number has measured itself.
template <typename Work>
double timed(Work&& work) {
    if constexpr (std::same_as<std::invoke_result_t<Work>, double>) {
        return work();
    } else {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }
}

// Runs `ours` and `raw` by turns, after a warm-up of each, and prints their medians. Running by turns lets a slow
// moment of a shared machine fall on both; short works are repeated until such moments are the exception.
template <typename Ours, typename Raw>
void compare(const std::string& name, Mark mark, Ours ours, Raw raw) {
    constexpr std::size_t fewest = 15;
    constexpr std::size_t most = 300;
    constexpr double enoughMilliseconds = 400;
    timed(ours);
    timed(raw);
    std::vector<double> oursTimes;
    std::vector<double> rawTimes;
    double sum = 0;
    while (oursTimes.size() < fewest || (sum < enoughMilliseconds && oursTimes.size() < most)) {
        oursTimes.push_back(timed(ours));
        rawTimes.push_back(timed(raw));
        sum += oursTimes.back() + rawTimes.back();
    }
    print(name, mark, median(oursTimes), median(rawTimes));
}

}  // namespace torvane::bench
