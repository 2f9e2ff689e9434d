#include "datastore/shape.h"

#include <sqlite3.h>

#include <algorithm>

#include "values/failure.h"

namespace torvane {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool isNameSign(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

class Reader {
public:
    explicit Reader(std::string_view text) : text_(text), rest_(trimmed(text)) {}

    bool atEnd() const { return rest_.empty(); }

    bool take(char sign) {
        if (rest_.empty() || rest_.front() != sign) return false;
        advance(1);
        return true;
    }

    void expect(char sign) {
        if (!take(sign)) refuse();
    }

    void expectWord(std::string_view word) {
        if (!same(name(), word)) refuse();
    }

    std::string_view name() {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), isNameSign);
        if (end == rest_.begin()) refuse();
        return advance(static_cast<std::size_t>(end - rest_.begin()));
    }

    // What stands before the closing brace, which is read, too; a brace in a quoted text closes nothing.
    std::string_view braced() {
        bool quoted = false;
        for (std::size_t i = 0; i < rest_.size(); ++i) {
            if (rest_[i] == '\'') quoted = !quoted;
            if (rest_[i] != '}' || quoted) continue;
            const std::string_view inner = trimmed(rest_.substr(0, i));
            advance(i + 1);
            if (inner.empty()) refuse();
            return inner;
        }
        refuse();
    }

    std::string_view quotedName() {
        expect('\'');
        const std::size_t close = rest_.find('\'');
        if (close == std::string_view::npos || close == 0) refuse();
        const std::string_view column = rest_.substr(0, close);
        advance(close + 1);
        return column;
    }

    static bool same(std::string_view a, std::string_view b) {
        return a.size() == b.size() && sqlite3_strnicmp(a.data(), b.data(), static_cast<int>(a.size())) == 0;
    }

    [[noreturn]] void refuse() const {
        throw RuntimeFailure(SQLITE_ERROR, "not a grouped command", std::string(text_));
    }

private:
    std::string_view advance(std::size_t length) {
        const std::string_view taken = rest_.substr(0, length);
        rest_ = trimmed(rest_.substr(length));
        return taken;
    }

    std::string_view text_;
    std::string_view rest_;
};

}  // namespace

ShapedCommand readShape(std::string_view text) {
    Reader reader(text);
    ShapedCommand command;
    reader.expectWord("shape");
    reader.expect('{');
    command.inner = reader.braced();
    reader.expectWord("as");
    command.child = reader.name();
    reader.expectWord("compute");
    if (!Reader::same(reader.name(), command.child)) reader.refuse();
    reader.expectWord("by");
    do {
        command.by.emplace_back(reader.quotedName());
    } while (reader.take(','));
    if (!reader.atEnd()) reader.refuse();
    return command;
}

}  // namespace torvane
