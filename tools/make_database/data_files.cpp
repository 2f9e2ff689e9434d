#include "make_database/data_files.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>

#include "values/dates.h"
#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {

namespace {

bool onlyOf(const std::string& text, std::string_view allowed) {
    return !text.empty() && text.find_first_not_of(allowed) == std::string::npos;
}

}  // namespace

void DataRow::fault(const std::string& text) const {
    throw DataFault(file.string() + ":" + std::to_string(line) + ": " + text);
}

void DataRow::require(std::size_t least, std::size_t most) const {
    if (columns.size() >= least && columns.size() <= most) return;
    fault("has " + std::to_string(columns.size()) + " columns, not " + std::to_string(least) +
          (most == least ? "" : " to " + std::to_string(most)));
}

const std::string& DataRow::text(std::size_t column) const {
    if (columns.at(column).empty()) fault("column " + std::to_string(column + 1) + " is empty");
    return columns[column];
}

double DataRow::number(std::size_t column) const {
    const std::string& digits = columns.at(column);
    if (!onlyOf(digits, "0123456789.") || !isNumeric(digits)) fault("\"" + digits + "\" is no number");
    return strictDouble(digits);
}

int DataRow::key(std::size_t column) const {
    const std::string& digits = columns.at(column);
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (!onlyOf(digits, "0123456789") || error != std::errc{} || value < 1)
        fault("\"" + digits + "\" is no whole number from 1");
    return value;
}

const std::string& DataRow::date(std::size_t column) const {
    const std::string& day = columns.at(column);
    if (const auto date = readDate(day); !date || isoText(*date) != day) fault("\"" + day + "\" is no date");
    return day;
}

std::vector<DataRow> readRows(const std::filesystem::path& file) {
    std::istringstream lines(readText(file));
    std::vector<DataRow> rows;
    std::string text;
    for (int line = 1; std::getline(lines, text); ++line) {
        if (text.find_first_not_of(" \r") == std::string::npos || text.front() == '#') continue;
        DataRow row{file, line, {}};
        std::istringstream columns(text + '\t');
        for (std::string column; std::getline(columns, column, '\t');) row.columns.emplace_back(trimmed(column));
        if (text.find('\'') != std::string::npos) row.fault("has an apostrophe");
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string readText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("can't read " + file.string());
    std::string text{std::istreambuf_iterator(in), {}};
    return text.erase(text.find_last_not_of("\r\n") + 1);
}

}  // namespace torvane
