#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace torvane {

// Measures as builders write them, to number and back. "Nothing" is the answer to a text that is not wholly understood.
// Letters may be of either case, marks and fractions those of good typography: 5½” is 5 1/2". Commas may stand between
// thousands, and nowhere else.

// A number, perhaps with a fraction: "1,250", "6 1/2", "6-1/2", "3/4", "1e3", with a sign before it.
std::optional<double> readNumber(std::string_view text);
// A number with this word behind it. Blanks and the points of abbreviations do not count: "9 sq. ft." has "sq ft".
std::optional<double> readNumber(std::string_view text, std::string_view word);

// Inches: 12' 6 1/2", 12 ft. 6 in., 12'-6-1/2", 7/8". A first number without a mark is feet; where `bare` is set, one
// behind it is inches, 12 6 1/2.
std::optional<double> readFeetInches(std::string_view text, bool bare);
// To the nearest 1/denominator of an inch, half to even, the fraction in lowest terms: 12' 6 1/2", 9", 1' 0".
// Empty from 1E15 inches up.
std::string writeFeetInches(double inches, int denominator);

// Rise over run: "1:4", "6:12" or "6/12" as they stand; a single number is the run to a rise of 1. Nothing for a run of
// 0.
std::optional<double> readRatio(std::string_view text);
// 1:n. Empty where the slope is 0, which no n gives.
std::string writeRatio(double slope);

// A piece of lumber, nominal inches by inches by feet: "2 x 6 x 14", 2" x 6" x 14' 6", "2 by 6 by 14".
struct Piece {
    double thickness = 1;
    double width = 12;
    double length = 1;
    double boardFeet() const { return thickness * width * length / 12; }
};
std::optional<Piece> readPiece(std::string_view text);
// The piece of that thickness and width which holds so many board feet. Empty where none does.
std::string writePiece(double boardFeet, const Piece& like);

// At most 15 significant digits; empty when the value is beyond the range of a double.
std::string writeNumber(double value);

}  // namespace torvane
