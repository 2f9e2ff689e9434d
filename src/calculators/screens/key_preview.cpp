#include "calculators/screens/key_preview.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenuBar>
#include <algorithm>

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
    window.installEventFilter(this);
    for (QWidget* control : window.findChildren<QWidget*>()) control->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (type == QEvent::ShortcutOverride && isShortcut(*key)) {
        // A text box would keep it for itself.
        event->ignore();
        return true;
    }
    if (type == QEvent::KeyPress && watched == firstReceiver() && !isCommand(*key) && key->text().size() == 1)
        pressed_(key->text().at(0).toLatin1());
    return false;
}

// A key that its control does not want goes on from parent to parent.
const QObject* KeyPreview::firstReceiver() const {
    QWidget* focus = window_.focusWidget();
    if (qobject_cast<QMenuBar*>(focus)) return nullptr;
    return focus ? focus : &window_;
}

bool KeyPreview::isShortcut(const QKeyEvent& key) const {
    const QKeySequence pressed(key.keyCombination());
    const auto entries = window_.findChildren<QAction*>();
    return std::ranges::any_of(entries, [&](const QAction* entry) { return entry->shortcut() == pressed; });
}

}  // namespace torvane
