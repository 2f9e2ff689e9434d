#include "harness.h"

#include <algorithm>
#include <cstdio>

namespace torvane::bench {

namespace {

bool kept = true;

}  // namespace

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void print(const std::string& name, Mark mark, double ours, double raw, const char* unit) {
    const double most = std::max(mark.least, mark.ratio * raw);
    std::printf("%-52s %8.3f %s  mark %8.3f", name.c_str(), ours, unit, most);
    if (raw > 0) std::printf("  without us %8.3f  ratio %5.2f", raw, ours / raw);
    std::puts(ours > most ? "  OVER" : "");
    std::fflush(stdout);
    kept = kept && ours <= most;
}

bool allKept() {
    return kept;
}

}  // namespace torvane::bench
