#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "reports/report_pages.h"

namespace torvane {

// The whole report as text, a line per placed thing: page, left, top, width, height, face, alignment, text.
inline std::string dump(const ReportPages& pages) {
    std::ostringstream text;
    for (int number = 0; number < pages.pageCount(); ++number) {
        for (const Placed& placed : pages.page(number)) {
            text << number + 1 << ' ' << placed.field.left << ' ' << placed.field.top << ' ' << placed.field.width
                 << ' ' << placed.field.height;
            constexpr const char* faces[] = {"plain", "bold", "title"};
            if (placed.field.kind == ReportControl::Line)
                text << " line\n";
            else
                text << ' ' << faces[static_cast<int>(placed.field.face)]
                     << (placed.field.align == Align::Right ? " right " : " left ") << placed.text << '\n';
        }
    }
    return text.str();
}

// A dump that is kept. It is renewed by taking over what its test prints.
inline std::string kept(const char* name) {
    const std::ifstream file(std::string(TORVANE_KEPT "/") + name);
    EXPECT_TRUE(file) << "the kept dump is missing";
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace torvane
