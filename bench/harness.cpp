#include "harness.h"

#include <algorithm>
#include <cstdio>

namespace torvane::bench {

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void printRatio(const char* name, double limit, double ours, double raw, const char* unit) {
    std::printf("%-52s ratio %5.2f (limit %.1f)  ours %8.3f %s  raw %8.3f %s%s\n", name, ours / raw, limit, ours, unit,
                raw, unit, ours > limit * raw ? "  OVER" : "");
    std::fflush(stdout);
}

void printFigure(const char* name, double limit, double ours, const char* unit) {
    std::printf("%-52s %8.3f %s (limit %.0f)%s\n", name, ours, unit, limit, ours > limit ? "  OVER" : "");
    std::fflush(stdout);
}

}  // namespace torvane::bench
