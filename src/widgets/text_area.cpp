#include "widgets/text_area.h"

#include "widgets/texts.h"

namespace torvane {

namespace {

QLatin1String lineEndOf(std::string_view text) {
    const std::size_t first = text.find_first_of("\r\n");
    if (first == std::string_view::npos || text[first] == '\n') return QLatin1String("\n");
    return QLatin1String(text.substr(first, 2) == "\r\n" ? "\r\n" : "\r");
}

}  // namespace

std::string TextArea::Text() const {
    // The plain text would have blanks in place of those that don't break.
    const QString text = document()->toRawText();
    return text == shown_ ? given_ : withLineEnds(text);
}

void TextArea::setText(std::string_view text) {
    given_ = text;
    setPlainText(qstring(given_));
    shown_ = document()->toRawText();
}

std::string TextArea::SelText() const {
    return withLineEnds(textCursor().selectedText());
}

// Qt separates lines by signs of its own.
std::string TextArea::withLineEnds(QString text) const {
    const QLatin1String end = lineEndOf(given_);
    return utf8(text.replace(QChar::ParagraphSeparator, end).replace(QChar::LineSeparator, end));
}

}  // namespace torvane
