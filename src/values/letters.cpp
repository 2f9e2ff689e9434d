#include "values/letters.h"

#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <new>

namespace torvane {

namespace {

// A byte of UTF-8 that begins no sign.
bool isInside(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The bytes of the sign that a text begins with; 0 for an empty one.
std::size_t signLength(std::string_view text) {
    if (text.empty()) return 0;
    return static_cast<std::size_t>(std::find_if_not(text.begin() + 1, text.end(), [](char c) { return isInside(c); }) -
                                    text.begin());
}

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

// The tables of ICU fail to load for want of memory only.
void check(UErrorCode status) {
    if (U_FAILURE(status)) throw std::bad_alloc();
}

std::string composed(std::string text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFCInstance(status);
    check(status);
    if (normalizer->isNormalizedUTF8(piece(text), status)) return text;
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    normalizer->normalizeUTF8(0, piece(text), sink, nullptr, status);
    check(status);
    return result;
}

// Letters that no table takes apart, and the bar of a fraction.
const char16_t* plainLetters(UChar32 letter) {
    switch (letter) {
        case U'ø':
            return u"o";
        case U'ł':
            return u"l";
        case U'đ':
        case U'ð':
            return u"d";
        case U'ħ':
            return u"h";
        case U'ŧ':
            return u"t";
        case U'ı':
            return u"i";
        case U'æ':
            return u"ae";
        case U'œ':
            return u"oe";
        case U'þ':
            return u"th";
        case U'\u2044':
            return u"/";
        default:
            return nullptr;
    }
}

// What a sign is sorted by: its base letters, without case and marks.
icu::UnicodeString baseLetters(std::string_view sign) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFKDInstance(status);
    check(status);
    icu::UnicodeString parts = normalizer->normalize(icu::UnicodeString::fromUTF8(piece(sign)).foldCase(), status);
    check(status);
    parts.foldCase();  // again, for signs made of capitals
    icu::UnicodeString base;
    for (std::int32_t at = 0; at < parts.length(); at = parts.moveIndex32(at, 1)) {
        const UChar32 letter = parts.char32At(at);
        if (u_getCombiningClass(letter) != 0) continue;
        if (const char16_t* plain = plainLetters(letter))
            base.append(plain, -1);
        else
            base.append(letter);
    }
    return base;
}

// Walks over the base letters of a text.
class BaseLetters {
public:
    explicit BaseLetters(std::string_view text) : text_(text) {}

    // The next one, or U_SENTINEL behind the last.
    UChar32 next() {
        for (;;) {
            if (place_ < base_.length()) {
                const UChar32 letter = base_.char32At(place_);
                place_ = base_.moveIndex32(place_, 1);
                return letter;
            }
            if (text_.empty()) return U_SENTINEL;
            if (isAscii(text_.front())) {
                const char letter = lower(text_.front());
                text_.remove_prefix(1);
                return letter;
            }
            const std::size_t length = signLength(text_);
            base_ = baseLetters(text_.substr(0, length));
            place_ = 0;
            text_.remove_prefix(length);
        }
    }

private:
    std::string_view text_;
    icu::UnicodeString base_;
    std::int32_t place_ = 0;
};

bool isInside(std::string_view text, std::size_t at) {
    return at < text.size() && isInside(text[at]);
}

}  // namespace

std::string withoutCase(std::string_view text) {
    std::string folded;
    if (std::ranges::all_of(text, isAscii)) {
        folded.resize(text.size());
        std::ranges::transform(text, folded.begin(), lower);
        return folded;
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&folded);
    icu::CaseMap::utf8Fold(U_FOLD_CASE_DEFAULT, piece(composed(std::string(text))), sink, nullptr, status);
    check(status);
    // The capital I with a dot, whose small letter is the plain i.
    constexpr std::string_view dotted = "i\u0307";
    for (auto at = folded.find(dotted); at != std::string::npos; at = folded.find(dotted)) folded.erase(at + 1, 2);
    return composed(std::move(folded));
}

int compareWithoutCase(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t at = 0;
    for (; at < shorter; ++at) {
        if (a[at] == b[at]) continue;
        if (!isAscii(a[at]) || !isAscii(b[at])) break;
        const char x = lower(a[at]);
        const char y = lower(b[at]);
        if (x != y) return x < y ? -1 : 1;
    }
    if (at == a.size() && at == b.size()) return 0;
    while (at > 0 && (isInside(a, at) || isInside(b, at))) --at;

    BaseLetters lettersOfA(a.substr(at));
    BaseLetters lettersOfB(b.substr(at));
    for (;;) {
        const UChar32 x = lettersOfA.next();
        const UChar32 y = lettersOfB.next();
        if (x != y) return x < y ? -1 : 1;
        if (x == U_SENTINEL) return withoutCase(a).compare(withoutCase(b));
    }
}

}  // namespace torvane
