#pragma once

#include <array>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace torvane {

// A day of the Gregorian calendar, without a time of day.
struct Date {
    int year = 1899;
    int month = 12;
    int day = 30;

    auto operator<=>(const Date&) const = default;  // NOLINT(modernize-use-nullptr): the 0 is the compiler's own
};

// How the machine writes a short date; the program is told once, at start. `pattern` uses d, dd, M, MM, MMM, MMMM,
// yyyy and literal signs ('quoted' where they are letters). The month names serve MMM and MMMM and the reading of
// dates.
struct ShortDate {
    std::string pattern = "M/d/yyyy";
    std::array<std::string, 12> monthNames{"January", "February", "March",     "April",   "May",      "June",
                                           "July",    "August",   "September", "October", "November", "December"};
    std::array<std::string, 12> shortMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
};

std::string shortDateText(const Date& date, const ShortDate& style);

// ISO form, yyyy-mm-dd: the form in the database file.
std::string isoText(const Date& date);

// Reads a date of the years 100 to 9999 as any machine may write it: slashes, dots, dashes or blanks between the parts,
// ISO order, month names (English ones and those of `style`), years of two digits (00 to 29 are 2000 to 2029, 30 to 99
// are 1930 to 1999). Where numbers leave a choice the month comes first. Nothing when the text is no date.
std::optional<Date> readDate(std::string_view text, const ShortDate& style = {});

// The same for what a user types: three numbers are taken in the order of the style's pattern, where that gives a date.
std::optional<Date> readTypedDate(std::string_view text, const ShortDate& style);

}  // namespace torvane
