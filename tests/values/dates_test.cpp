#include "values/dates.h"

#include <gtest/gtest.h>

#include <string>

namespace torvane {
namespace {

// Texts in boxes and statements of a machine that writes German dates.
TEST(Dates, Reading) {
    const struct {
        const char* text;
        const char* iso;
        const char* typed = nullptr;  // what a user means who writes the day first; nothing where it is the same
    } rows[] = {
        {" 7 / 4 / 2003 ", "2003-07-04", "2003-04-07"},
        {"04. 07. 2003.", "2003-04-07", "2003-07-04"},
        {"7.13.2003", "2003-07-13"},
        {"13/5/2003 J.", "2003-05-13"},
        {"2003-07-04", "2003-07-04"},
        {"99-12-31", "1999-12-31"},
        {"1/1/29", "2029-01-01"},
        {"1/1/30", "1930-01-01"},
        {"31/1/31", "1931-01-31"},
        {"2/29/2000", "2000-02-29"},
        {"JULY 4, 2003", "2003-07-04"},
        {"4-Jul-03", "2003-07-04"},
        {"2003 Jul 4", "2003-07-04"},
        {"4 März 2003 J.", "2003-03-04"},
    };
    ShortDate german;
    german.pattern = "d. MMMM yyyy 'J.'";
    german.monthNames[2] = german.shortMonthNames[2] = "März";
    const auto text = [](const std::optional<Date>& date) { return date ? isoText(*date) : "none"; };
    for (const auto& row : rows) {
        EXPECT_EQ(text(readDate(row.text, german)), row.iso) << row.text;
        EXPECT_EQ(text(readTypedDate(row.text, german)), row.typed ? row.typed : row.iso) << row.text;
    }
    for (const char* none : {"2/29/1900", "4 Jula 2003", "4 Julz 2003", "July 2003", "July 4 July 2003", "7/4",
                             "7//4/2003", "/7/4/2003", "7/4/2003/1", "13/13/2003", "0/4/2003", "7/4/20030",
                             "7/004/2003", "004/7/2003", "2003-13-01", "1/1/0050", "today"}) {
        EXPECT_EQ(text(readDate(none, german)), "none") << none;
        EXPECT_EQ(text(readTypedDate(none, german)), "none") << none;
    }
}

TEST(Dates, ShortText) {
    for (const auto& [pattern, text] : {std::pair{"MM/dd/yy", "07/04/03"},
                                        {"d MMM yyyy", "4 Jul 2003"},
                                        {"d'.' MMMM, yy 'year", "4. July, 03 year"},
                                        {"yyyy ''dd", "2003 '04"}}) {
        ShortDate style;
        style.pattern = pattern;
        EXPECT_EQ(shortDateText({2003, 7, 4}, style), text);
    }
}

}  // namespace
}  // namespace torvane
