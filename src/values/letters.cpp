#include "values/letters.h"

#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <new>
#include <utility>

namespace torvane {

namespace {

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
constexpr std::pair<UChar32, const char16_t*> plainLetters[] = {
    {U'ø', u"o"}, {U'ł', u"l"},  {U'đ', u"d"},  {U'ð', u"d"},  {U'ħ', u"h"},     {U'ŧ', u"t"},
    {U'ı', u"i"}, {U'æ', u"ae"}, {U'œ', u"oe"}, {U'þ', u"th"}, {U'\u2044', u"/"}};

// What a text is sorted by: its base letters, without case and marks.
icu::UnicodeString baseLetters(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFKDInstance(status);
    check(status);
    icu::UnicodeString parts = normalizer->normalize(icu::UnicodeString::fromUTF8(piece(text)).foldCase(), status);
    check(status);
    parts.foldCase();  // again, for signs made of capitals
    icu::UnicodeString base;
    for (std::int32_t at = 0; at < parts.length(); at = parts.moveIndex32(at, 1)) {
        const UChar32 letter = parts.char32At(at);
        if (u_getCombiningClass(letter) != 0) continue;
        const auto* plain = std::ranges::find(plainLetters, letter, &std::pair<UChar32, const char16_t*>::first);
        base += plain == std::end(plainLetters) ? icu::UnicodeString(letter) : icu::UnicodeString(plain->second);
    }
    return base;
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
        if (x != y) return x - y;
    }
    if (at == a.size() && at == b.size()) return 0;
    // The beginning of a text comes before it; a mark behind it would still belong to its last letter.
    if (at == a.size() && isAscii(b[at])) return -1;
    if (at == b.size() && isAscii(a[at])) return 1;
    const int order = baseLetters(a).compareCodePointOrder(baseLetters(b));
    return order != 0 ? order : withoutCase(a).compare(withoutCase(b));
}

}  // namespace torvane
