#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace torvane {

// Measures as builders write them, to number and back. "Nothing" is the answer to a text that is not wholly understood.

// A number, perhaps with a fraction: "12", "6 1/2", "6-1/2", "3/4", "1e3", with a sign before it. The text may close
// with `symbol`, in any case and with blanks anywhere.
std::optional<double> readNumber(std::string_view text, std::string_view symbol = {});

// Inches: 12' 6 1/2", 12 ft 6 in, 12'-6-1/2", 7/8". A first number without a mark is feet, one after the feet inches.
std::optional<double> readFeetInches(std::string_view text);
// To the nearest 1/denominator of an inch, half to even, the fraction in lowest terms: 12' 6 1/2", 9", 1' 0".
// Empty from 1E15 inches up.
std::string writeFeetInches(double inches, int denominator);

// Rise over run: "1:4", "6:12" or "6/12" as they stand; a single number is the run to a rise of 1. Nothing for a run of
// 0.
std::optional<double> readRatio(std::string_view text);
// 1:n. Empty where the slope is 0, which no n gives.
std::string writeRatio(double slope);

// A piece of lumber: "2 x 6 x 14", nominal inches by inches by feet.
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
