#include "widgets/text_box.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QValidator>
#include <algorithm>

#include "widgets/texts.h"

namespace torvane {

class TextBox::OneLine : public QValidator {
public:
    explicit OneLine(TextBox& box) : QValidator(&box), box_(box) {}

    State validate(QString& text, int& caret) const override {
        if (box_.byCode_) return Acceptable;
        const QString before = oneLine(text.left(caret));
        text = before + oneLine(text.mid(caret));
        caret = static_cast<int>(before.size());
        return Acceptable;
    }

private:
    const TextBox& box_;
};

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setValidator(new OneLine(*this));
}

std::string TextBox::Text() const {
    return utf8(text());
}

void TextBox::setText(std::string_view text) {
    setText(qstring(text));
}

void TextBox::setText(const QString& text) {
    const QScopedValueRollback byCode(byCode_, true);
    QLineEdit::setText(text);
    setCursorPosition(0);
}

void TextBox::setKeyFilter(std::string_view allowed) {
    allowed_ = qstring(allowed);
    filtered_ = true;
}

// The signs of backspace, Delete, Enter and the like are no characters.
bool TextBox::passes(const QString& typed) const {
    return !filtered_ || std::all_of(typed.begin(), typed.end(), [this](QChar sign) {
        return sign < u' ' || sign == u'\x7f' || allowed_.contains(sign);
    });
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    // Control with a letter is a command; with Alt as well it is how some keyboards write a character, and with Shift
    // how they write one that is not seen.
    const Qt::KeyboardModifiers held = event->modifiers();
    const bool command = (held & Qt::ControlModifier) && !(held & Qt::AltModifier);
    const QString typed = event->text();
    const bool letter = typed.isEmpty() || typed.at(0).isPrint();
    if ((command && letter) || passes(typed))
        QLineEdit::keyPressEvent(event);
    else
        event->accept();
}

// Composed characters and those of an on-screen keyboard come this way. What does not pass leaves nothing behind.
void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent nothing;
    const bool pass = passes(event->commitString()) && passes(event->preeditString());
    QLineEdit::inputMethodEvent(pass ? event : &nothing);
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    static const QRegularExpression number(QStringLiteral("^[-+]?[0-9.,]+$"));
    QLineEdit::mouseDoubleClickEvent(event);  // also makes a third click take the whole line
    if (event->button() == Qt::LeftButton && number.match(text()).hasMatch()) selectAll();
}

void TextBox::setResult(bool result) {
    setReadOnly(result);
    setFocusPolicy(result ? Qt::ClickFocus : Qt::StrongFocus);
    QPalette colours = parentWidget() ? parentWidget()->palette() : QPalette();
    if (result) colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    setPalette(colours);
}

}  // namespace torvane
