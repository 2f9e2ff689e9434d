#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace torvane {

// A box of several lines of plain text.
class TextArea : public QPlainTextEdit {
    Q_OBJECT
public:
    using QPlainTextEdit::QPlainTextEdit;
    std::string Text() const;
    void setText(std::string_view text);
    // The selected text, or "".
    std::string SelText() const;
};

}  // namespace torvane
