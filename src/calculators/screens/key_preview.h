#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace torvane {

// Sees the keys of a window before its controls do, and takes none away. Keys in the menu bar are left to it.
class KeyPreview : public QObject {
public:
    // `pressed` gets each character that is typed. Made when all controls of the window stand; the window owns it.
    KeyPreview(QWidget& window, std::function<void(char)> pressed);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QObject* firstReceiver() const;

    QWidget& window_;
    std::function<void(char)> pressed_;
};

}  // namespace torvane
