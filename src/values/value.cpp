#include "values/value.h"

#include <type_traits>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

namespace {

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace

std::string textOf(const Value& value, const ShortDate& style) {
    return std::visit(
        Overloaded{[](Null) -> std::string { fail(Failure::NullValue); },
                   [&](const Date& date) { return shortDateText(date, style); },
                   [](const std::string& text) { return text; }, [](auto number) { return generalText(number); }},
        value);
}

std::string textOrEmpty(const Value& value, const ShortDate& style) {
    return isNull(value) ? std::string() : textOf(value, style);
}

double toDouble(const Value& value) {
    return std::visit(
        [&value](const auto& held) {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(held)>>)
                return static_cast<double>(held);
            else
                return strictDouble(textOf(value));
        },
        value);
}

float toSingle(const Value& value) {
    return narrowToSingle(toDouble(value));
}
std::int16_t toInt16(const Value& value) {
    return narrowToInt16(toDouble(value));
}
std::int32_t toInt32(const Value& value) {
    return narrowToInt32(toDouble(value));
}

Date toDate(const Value& value, const ShortDate& style) {
    if (const auto* date = std::get_if<Date>(&value)) return *date;
    const std::string text = textOf(value);
    if (const auto date = readDate(text, style)) return *date;
    fail(Failure::TypeMismatch, text);
}

float singleOrZero(const Value& value) {
    return isNull(value) ? 0 : toSingle(value);
}
std::int16_t int16OrZero(const Value& value) {
    return isNull(value) ? std::int16_t{0} : toInt16(value);
}
std::int32_t int32OrZero(const Value& value) {
    return isNull(value) ? 0 : toInt32(value);
}

}  // namespace torvane
