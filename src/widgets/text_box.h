#pragma once

#include <QLineEdit>
#include <string>
#include <string_view>

namespace torvane {

// A text box. `Change` is textChanged: it fires only when the text differs. What the user pastes or drops comes in on
// one line; what code writes stays as it is until the user changes it. Where a key filter is set, a typed character
// passes only if it is among `allowed`; paste, copy, Delete, backspace, arrows and Tab always work.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    explicit TextBox(QWidget* parent = nullptr);
    std::string Text() const;
    // The caret goes to the front, so that a long text shows its beginning.
    void setText(std::string_view text);
    void setText(const char* text) { setText(std::string_view(text)); }
    void setText(const QString& text);  // what uic calls
    void setKeyFilter(std::string_view allowed);
    // Shown like a result: read-only, greyed, no tab stop; still selectable for copying.
    void setResult(bool result);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    // A number is one word, with its point.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    class OneLine;
    bool passes(const QString& typed) const;
    QString allowed_;
    bool filtered_ = false;
    bool byCode_ = false;  // the text is being written by code
};

}  // namespace torvane
