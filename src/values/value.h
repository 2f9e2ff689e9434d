#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <variant>

#include "values/dates.h"

namespace torvane {

struct Null {
    auto operator<=>(const Null&) const = default;
};

// One cell of a database row. A float is a float32 column, narrowed when it was read; a double is a computed number.
using Value = std::variant<Null, std::int64_t, double, float, Date, std::string>;

inline bool isNull(const Value& value) {
    return std::holds_alternative<Null>(value);
}

// General conversion to text. Null fails with Failure::NullValue.
std::string textOf(const Value& value, const ShortDate& style = {});
// The same, with "" for Null.
std::string textOrEmpty(const Value& value, const ShortDate& style = {});

// Strict conversions. Null fails with Failure::NullValue, what is no number (or no date) with Failure::TypeMismatch, a
// number out of range with Failure::Overflow. Fractions go half to even.
double toDouble(const Value& value);
float toSingle(const Value& value);
std::int16_t toInt16(const Value& value);
std::int32_t toInt32(const Value& value);
Date toDate(const Value& value, const ShortDate& style = {});

// The conversions above with 0 for Null.
float singleOrZero(const Value& value);
std::int16_t int16OrZero(const Value& value);
std::int32_t int32OrZero(const Value& value);

}  // namespace torvane
