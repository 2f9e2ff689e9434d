#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace torvane {

// A fault in a data file; the text begins with "<file>:<line>: ".
class DataFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One row of a data file: its columns, without the blanks around them, and where it stands.
struct DataRow {
    std::filesystem::path file;
    int line = 0;
    std::vector<std::string> columns;

    [[noreturn]] void fault(const std::string& text) const;
    // DataFault unless the row has from `least` to `most` columns.
    void require(std::size_t least, std::size_t most) const;
    // A column that must not be empty. DataFault otherwise.
    const std::string& text(std::size_t column) const;
    // DataFault unless the whole column is a plain number (digits and a point).
    double number(std::size_t column) const;
    // The same for a whole number from 1.
    int key(std::size_t column) const;
    // DataFault unless the column is a day of the calendar as yyyy-mm-dd.
    const std::string& date(std::size_t column) const;
};

// The rows of a text file: columns stand between tabs; empty lines and lines that begin with # are passed over. A text
// with an apostrophe is a DataFault, since no statement of the system could carry it. A file that can't be read is a
// std::runtime_error.
std::vector<DataRow> readRows(const std::filesystem::path& file);

// The whole text of a file, without line breaks at its end. Failures as above, but apostrophes are allowed.
std::string readText(const std::filesystem::path& file);

}  // namespace torvane
