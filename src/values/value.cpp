#include "values/value.h"

#include <chrono>
#include <cmath>

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

using Days = std::chrono::sys_days;

// A date as a number counts the days since this one, the default date.
constexpr Days dayZero = std::chrono::year{1899} / 12 / 30;

double serialOf(const Date& date) {
    const auto day = std::chrono::year{date.year} / date.month / date.day;
    return static_cast<double>((Days{day} - dayZero).count());
}

Date dateOfSerial(double serial) {
    const double whole = std::floor(finite(serial));
    if (std::abs(whole) > 4'000'000) fail(Failure::Overflow);
    const std::chrono::year_month_day day{dayZero + std::chrono::days{static_cast<int>(whole)}};
    const Date date{static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
                    static_cast<int>(static_cast<unsigned>(day.day()))};
    if (!isValid(date)) fail(Failure::Overflow);
    return date;
}

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
        Overloaded{[](Null) -> double { fail(Failure::NullValue); }, [](const Date& date) { return serialOf(date); },
                   [](const std::string& text) { return strictDouble(text); },
                   [](auto number) { return static_cast<double>(number); }},
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
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (const auto date = readDate(*text, style)) return *date;
        fail(Failure::TypeMismatch, *text);
    }
    return dateOfSerial(toDouble(value));
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
