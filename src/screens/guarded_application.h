#pragma once

#include <QApplication>
#include <functional>

#include "values/failure.h"

namespace torvane {

// The application object. Its notify() is the last net under the event guard: an exception that gets here has passed a
// handler that was not connected with `on`. It goes no further, since it would end the process in the midst of Qt.
class GuardedApplication : public QApplication {
    Q_OBJECT
public:
    // Sets the style, that the process does not end by itself with its last window, and that no dialog keeps settings.
    GuardedApplication(int& argc, char** argv);
    // What to do with what was caught; main() ends the program with it.
    void setLastNet(std::function<void(const RuntimeFailure&)> caught) { caught_ = std::move(caught); }
    bool notify(QObject* receiver, QEvent* event) override;

private:
    std::function<void(const RuntimeFailure&)> caught_;
};

}  // namespace torvane
