#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "datastore/rows.h"
#include "datastore/statement.h"

namespace torvane {

// A table of these says once which column holds which member of a record. Rows are read and statements are written by
// it, in the order of the table.
template <class Record>
struct Field {
    std::string_view column;
    std::variant<std::string Record::*, std::int16_t Record::*> member;
};

// As it stands in a statement: a text between quotes, with nothing escaped, or a number.
template <class Record>
std::string literal(const Record& record, const Field<Record>& field) {
    return std::visit(
        [&record](auto member) {
            if constexpr (std::same_as<decltype(member), std::string Record::*>)
                return joined("'", record.*member, "'");
            else
                return generalText(record.*member);
        },
        field.member);
}

// "A,B"
template <class Record, std::size_t count>
std::string columnList(const Field<Record> (&fields)[count]) {
    std::string text;
    for (const auto& field : fields) text.append(text.empty() ? "" : ",").append(field.column);
    return text;
}

// "'a',2"
template <class Record, std::size_t count>
std::string valueList(const Record& record, const Field<Record> (&fields)[count]) {
    std::string text;
    for (const auto& field : fields) text.append(text.empty() ? "" : ",").append(literal(record, field));
    return text;
}

// "A = 'a', B = 2", with the signs that are given.
template <class Record, std::size_t count>
std::string columnsWithValues(const Record& record, const Field<Record> (&fields)[count], std::string_view equals,
                              std::string_view between) {
    std::string text;
    for (const auto& field : fields)
        text.append(text.empty() ? "" : between).append(field.column).append(equals).append(literal(record, field));
    return text;
}

// Reads the fields from the first row: Null is "" or 0.
template <class Record, std::size_t count>
void readFields(Record& record, const Field<Record> (&fields)[count], const RowArray& rows) {
    for (const auto& field : fields) {
        const Value& cell = rows(field.column, 0);
        if (const auto* text = std::get_if<std::string Record::*>(&field.member))
            record.** text = textOrEmpty(cell);
        else
            record.*std::get<std::int16_t Record::*>(field.member) = int16OrZero(cell);
    }
}

template <class Record, std::size_t count>
void clearFields(Record& record, const Field<Record> (&fields)[count]) {
    for (const auto& field : fields) std::visit([&record](auto member) { record.*member = {}; }, field.member);
}

}  // namespace torvane
