#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace torvane {

// A box of several lines of plain text. A text that the user leaves as it is comes back exactly as it was given; one
// that he changes has line ends of the kind that it had first ("\n" where it had none).
class TextArea : public QPlainTextEdit {
    Q_OBJECT
public:
    using QPlainTextEdit::QPlainTextEdit;
    std::string Text() const;
    void setText(std::string_view text);
    // The selected text, or "".
    std::string SelText() const;

private:
    std::string withLineEnds(QString text) const;

    std::string given_;
    QString shown_;  // what the document made of it
};

}  // namespace torvane
