#include "values/letters.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace torvane {
namespace {

// The texts stand in order, with blanks between; those with bars between them are the same without case. The first is
// empty.
const char* const inOrder =
    "| 1/2 ½ 10 2 _ a_b|A_B ab|aB aesop|AESOP æsop|ÆSOP arger|ARGER ärger|ÄRGER|A\u0308rger art cafe café|CAFE\u0301 "
    "cafeteria istanbul|ISTANBUL|İSTANBUL|I\u0307stanbul ıstanbul lodz łódź|ŁÓDŹ lof m2 m²|M² m3 muñoz|MUÑOZ "
    "munro strasse|STRASSE|straße|STRAẞE strate zorn|ZORN σίσυφος|ΣΊΣΥΦΟΣ елка ёлка|ЁЛКА ель|ЕЛЬ "
    "가|\u1100\u1161 나 か が かく 中 \xC3 \xF0\x9F\x98\x80";

int sign(int number) {
    return (number > 0) - (number < 0);
}

// Each text is compared with each: else a list by name shows its rows in a wrong place, or a search misses one.
TEST(Letters, StandInOrderWithoutCase) {
    std::vector<std::pair<std::string, int>> texts;
    std::istringstream places(inOrder);
    int place = 0;
    for (std::string group; places >> group; ++place) {
        std::istringstream same(group + '|');
        for (std::string text; std::getline(same, text, '|');) texts.emplace_back(text, place);
    }
    for (const auto& [a, placeOfA] : texts)
        for (const auto& [b, placeOfB] : texts) {
            EXPECT_EQ(sign(compareWithoutCase(a, b)), sign(placeOfA - placeOfB)) << a << " and " << b;
            EXPECT_EQ(withoutCase(a) == withoutCase(b), placeOfA == placeOfB) << a << " and " << b;
        }
}

}  // namespace
}  // namespace torvane
