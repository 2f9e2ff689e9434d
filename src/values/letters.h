#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace torvane {

// The letters of texts: blanks, and texts compared without case in all scripts. Texts are UTF-8; what is no UTF-8
// counts as unknown signs. Nothing here depends on a locale, so a list stands in the same order on all machines.

constexpr bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

// Of ASCII; all else stays.
constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// A space, a tab or a line break.
constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// The text without the blanks around it.
constexpr std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

// Whether a text begins with a word, whatever the case of ASCII letters.
constexpr bool beginsWith(std::string_view text, std::string_view word) {
    return text.size() >= word.size() && std::ranges::equal(text.substr(0, word.size()), word, {}, lower, lower);
}

// The text without case: the same for two texts that differ by case alone, or by how an accented letter is put
// together. "Ärger" and "ÄRGER" are the same, "Arger" is another text, and so are "m2" and "m²".
std::string withoutCase(std::string_view text);

// The order of lists: below 0, 0 or above 0. Letters stand among their kind, "Ärger" between "Arger" and "Art"; only
// where nothing else differs do accents decide. 0 just when `withoutCase` gives the same for both. For texts of ASCII
// this is the order of their bytes in lower case.
int compareWithoutCase(std::string_view a, std::string_view b);

}  // namespace torvane
