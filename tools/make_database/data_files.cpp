#include "make_database/data_files.h"

#include <charconv>
#include <chrono>
#include <fstream>
#include <sstream>

namespace torvane {

namespace {

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \r") - first + 1);
}

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
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (!onlyOf(digits, "0123456789.") || error != std::errc{} || end != digits.data() + digits.size())
        fault("\"" + digits + "\" is no number");
    return value;
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
    const std::string& digits = columns.at(column);
    std::string shape = digits;
    for (char& sign : shape)
        if (sign >= '0' && sign <= '9') sign = '0';
    if (shape == "0000-00-00") {
        const auto part = [&](std::size_t start) { return static_cast<unsigned>(std::stoi(digits.substr(start, 2))); };
        const std::chrono::year_month_day read{std::chrono::year{std::stoi(digits.substr(0, 4))},
                                               std::chrono::month{part(5)}, std::chrono::day{part(8)}};
        if (read.ok()) return digits;
    }
    fault("\"" + digits + "\" is no date");
}

std::vector<DataRow> readRows(const std::filesystem::path& file) {
    std::istringstream lines(readText(file));
    std::vector<DataRow> rows;
    std::string text;
    for (int line = 1; std::getline(lines, text); ++line) {
        if (trimmed(text).empty() || text.front() == '#') continue;
        DataRow row{file, line, {}};
        for (std::size_t start = 0; start != std::string::npos;) {
            const std::size_t tab = text.find('\t', start);
            row.columns.push_back(trimmed(text.substr(start, tab == std::string::npos ? tab : tab - start)));
            start = tab == std::string::npos ? tab : tab + 1;
        }
        if (text.find('\'') != std::string::npos) row.fault("has an apostrophe");
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string readText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    // An empty file sets the fail bit of the text, so only the source is asked.
    if (!in || (text << in.rdbuf(), in.bad())) throw std::runtime_error("can't read " + file.string());
    std::string whole = text.str();
    while (!whole.empty() && (whole.back() == '\n' || whole.back() == '\r')) whole.pop_back();
    return whole;
}

}  // namespace torvane
