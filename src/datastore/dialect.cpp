#include "datastore/dialect.h"

#include <sqlite3.h>

#include <algorithm>

#include "values/failure.h"
#include "values/letters.h"

// What the dialect has over SQLite's own:
//
//   delete * from <table> ...     the star is dropped
//   #<date>#                      a date literal; becomes 'yyyy-mm-dd'
//
// and what it has not: remarks (-- and /* */), and anything but blanks behind a semicolon. Between quotes, which are
// '...', "...", `...` and [...], everything stands as it is.

namespace torvane {

namespace {

[[noreturn]] void refuse(const char* why, std::string_view statement) {
    throw RuntimeFailure(SQLITE_ERROR, why, std::string(statement));
}

// The length of the quoted piece that `text` begins with; all of it when nothing ends it. A piece with a doubled quote
// counts as two, which stand as they are like the one.
std::size_t quotedLength(std::string_view text) {
    const std::size_t end = text.find(text.front() == '[' ? ']' : text.front(), 1);
    return end == std::string_view::npos ? text.size() : end + 1;
}

}  // namespace

std::string translate(std::string_view statement, const ShortDate& style) {
    if (statement.find('\0') != std::string_view::npos) refuse("a statement holds no zero byte", statement);
    std::string sql;
    sql.reserve(statement.size() + 16);
    std::string_view rest = statement;
    constexpr std::string_view keyword = "delete";
    if (const auto text = trimmed(statement);
        beginsWith(text, keyword) && trimmed(text.substr(keyword.size())).starts_with('*')) {
        sql = "delete ";
        rest.remove_prefix(rest.find('*') + 1);
    }

    while (!rest.empty()) {
        const std::size_t plain = std::min(rest.find_first_of("'\"`[#;-/"), rest.size());
        sql += rest.substr(0, plain);
        rest.remove_prefix(plain);
        if (rest.empty()) break;

        std::size_t length = 1;
        switch (rest.front()) {
            case '#': {
                const std::size_t close = rest.find('#', 1);
                if (close == std::string_view::npos) refuse("a date has no end", statement);
                const auto date = readDate(rest.substr(1, close - 1), style);
                if (!date) refuse("not a date", statement);
                sql.append(1, '\'').append(isoText(*date)).append(1, '\'');
                rest.remove_prefix(close + 1);
                continue;
            }
            case ';':
                if (!trimmed(rest.substr(1)).empty()) refuse("text behind the statement", statement);
                return sql;
            case '-':
            case '/':
                if (rest.starts_with("--") || rest.starts_with("/*")) refuse("a remark in the statement", statement);
                break;
            default:
                length = quotedLength(rest);
        }
        sql += rest.substr(0, length);
        rest.remove_prefix(length);
    }
    return sql;
}

}  // namespace torvane
