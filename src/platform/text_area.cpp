#include "platform/text_area.h"

#include "platform/controls.h"

namespace torvane {

std::string TextArea::Text() const {
    return utf8(toPlainText());
}

void TextArea::setText(std::string_view text) {
    setPlainText(qstring(text));
}

std::string TextArea::SelText() const {
    // Qt separates the lines of a selection by a paragraph sign.
    return utf8(textCursor().selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n')));
}

}  // namespace torvane
