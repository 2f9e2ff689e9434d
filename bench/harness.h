#pragma once

#include <chrono>
#include <concepts>
#include <type_traits>
#include <vector>

namespace torvane::bench {

double median(std::vector<double> values);

// Prints a line: a figure of ours against that of the same work without us, and whether their ratio keeps its limit.
void printRatio(const char* name, double limit, double ours, double raw, const char* unit);
// Prints a line for a figure that has a limit of its own.
void printFigure(const char* name, double limit, double ours, const char* unit);

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

// Runs `ours` and `raw` by turns, after a warm-up of each, and prints the ratio of their medians. Running by turns lets
// a slow moment of a shared machine fall on both; short works are repeated until such moments are the exception.
template <typename Ours, typename Raw>
void compare(const char* name, double limit, Ours ours, Raw raw) {
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
    printRatio(name, limit, median(oursTimes), median(rawTimes), "ms");
}

}  // namespace torvane::bench
