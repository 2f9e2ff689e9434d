#include "values/letters.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace torvane {
namespace {

int sign(int number) {
    return (number > 0) - (number < 0);
}

// Texts of one row are the same without case; the rows stand in order. Each text is compared with each.
TEST(Letters, StandInOrderWithoutCase) {
    const std::vector<std::vector<std::string>> rows{
        {""},
        {" x"},
        {"1/2"},
        {"½"},
        {"10"},
        {"2"},
        {"_"},
        {"a_b", "A_B"},
        {"ab", "aB"},
        {"aesop", "AESOP"},
        {"æsop", "ÆSOP"},
        {"arger", "ARGER"},
        {"ärger", "ÄRGER", "A\u0308rger"},
        {"art"},
        {"cafe"},
        {"café", "CAFE\u0301"},
        {"cafeteria"},
        {"istanbul", "ISTANBUL", "İSTANBUL", "I\u0307stanbul"},
        {"ıstanbul"},
        {"lodz"},
        {"łódź", "ŁÓDŹ"},
        {"lof"},
        {"m2"},
        {"m²", "M²"},
        {"m3"},
        {"muñoz", "MUÑOZ"},
        {"munro"},
        {"strasse", "STRASSE", "straße", "STRAẞE"},
        {"strate"},
        {"zorn"},
        {"σίσυφος", "ΣΊΣΥΦΟΣ"},
        {"елка"},
        {"ёлка", "ЁЛКА"},
        {"ель", "ЕЛЬ"},
        {"жук", "ЖУК"},
        {"가", "\u1100\u1161"},
        {"나"},
        {"か"},
        {"が"},
        {"かく"},
        {"中"},
        {"\xC3"},
        {"\xF0\x9F\x98\x80"},
    };
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (std::size_t j = 0; j < rows.size(); ++j)
            for (const std::string& a : rows[i])
                for (const std::string& b : rows[j]) {
                    EXPECT_EQ(sign(compareWithoutCase(a, b)), sign(static_cast<int>(i) - static_cast<int>(j)))
                        << a << " and " << b;
                    EXPECT_EQ(withoutCase(a) == withoutCase(b), i == j) << a << " and " << b;
                }
}

}  // namespace
}  // namespace torvane
