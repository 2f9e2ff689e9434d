#include "calculators/screens/key_preview.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>

namespace torvane {

namespace {

// Control or Alt with a letter is a command; both together are how some keyboards write a character.
bool isCommand(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier) || held.testFlag(Qt::MetaModifier);
}

}  // namespace

KeyPreview::KeyPreview(QWidget& window, std::function<void(char)> pressed)
    : QObject(&window), window_(window), pressed_(std::move(pressed)) {
    for (QWidget* control : window.findChildren<QWidget*>()) control->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event) {
    // A box would keep the keys of the menu for itself.
    if (event->type() == QEvent::ShortcutOverride && qobject_cast<QLineEdit*>(watched)) return true;
    if (event->type() != QEvent::KeyPress || watched != firstReceiver()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!isCommand(*key) && key->text().size() == 1) pressed_(key->text().at(0).toLatin1());
    return false;
}

// A key that its control does not want goes on from parent to parent.
const QObject* KeyPreview::firstReceiver() const {
    QWidget* focus = window_.focusWidget();
    return qobject_cast<QMenuBar*>(focus) ? nullptr : focus;
}

}  // namespace torvane
