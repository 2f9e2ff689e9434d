#include "support/screen_test.h"

#include <sys/wait.h>
#include <unistd.h>
#include <QAccessible>
#include <QAction>
#include <QDialog>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QPointer>
#include <QTest>
#include <QThreadPool>
#include <QWindow>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "screens/guarded_application.h"

namespace torvane {

namespace {

constexpr int patienceMs = 20000;
constexpr int pollMs = 5;
constexpr int failedStatus = 3;

std::string nameOf(const QObject& object) {
    return object.objectName().isEmpty() ? object.metaObject()->className() : utf8(object.objectName());
}

// Whether a user could get at it at all.
bool reachable(const QWidget& control) {
    QCoreApplication::processEvents();  // a window that was just shown becomes the active one
    if (control.isVisible() && control.isEnabled()) return true;
    ADD_FAILURE() << nameOf(control) << " is " << (control.isVisible() ? "disabled" : "hidden");
    return false;
}

QWindow* windowOf(const QWidget& control) {
    return control.window()->windowHandle();
}

QPoint inWindow(const QWidget& control, QPoint position) {
    return control.mapTo(control.window(), position);
}

void clickAt(QWidget& control, QPoint position, Qt::MouseButton button) {
    if (!reachable(control)) return;
    QTest::mouseClick(windowOf(control), button, {}, inWindow(control, position));
    settle();
}

QPoint rowCentre(ReportList& list, int row) {
    QTreeWidgetItem* item = list.topLevelItem(row);
    if (!item) throw std::out_of_range(nameOf(list) + " has no row " + std::to_string(row));
    list.scrollToItem(item);
    const QRect rect = list.visualItemRect(item);
    return {std::min(rect.center().x(), list.viewport()->width() / 2), rect.center().y()};
}

GuardedApplication& application() {
    return *static_cast<GuardedApplication*>(qApp);
}

void focusOn(QWidget& control) {
    if (!control.hasFocus()) control.setFocus(Qt::OtherFocusReason);
}

}  // namespace

void failNotFound(const QObject& in, std::string_view name, const QObjectList& candidates) {
    std::string message = "no \"" + std::string(name) + "\" in " + nameOf(in) + "; there are:";
    for (const QObject* one : candidates)
        if (!one->objectName().isEmpty() && !one->objectName().startsWith("qt_")) message += " " + nameOf(*one);
    throw std::runtime_error(message);
}

void click(QWidget& control, Qt::MouseButton button) {
    clickAt(control, control.rect().center(), button);
}

void clickRow(ReportList& list, int row, Qt::MouseButton button) {
    clickAt(*list.viewport(), rowCentre(list, row), button);
}

void doubleClickRow(ReportList& list, int row) {
    if (!reachable(list)) return;
    QTest::mouseDClick(windowOf(list), Qt::LeftButton, {}, inWindow(*list.viewport(), rowCentre(list, row)));
    settle();
}

void clickHeader(ReportList& list, int column) {
    QHeaderView& header = *list.header();
    const int left = header.sectionViewportPosition(column);
    clickAt(*header.viewport(), {left + header.sectionSize(column) / 2, header.height() / 2}, Qt::LeftButton);
}

void pickInList(DropList& list, int index) {
    if (!reachable(list)) return;
    const QPointer<QWidget> window = list.window();  // the pick may close it
    focusOn(list);
    list.showPopup();
    list.view()->setCurrentIndex(list.model()->index(index, 0));
    QTest::keyClick(windowOf(*list.view()), Qt::Key_Return);
    settle();
    // Without a window manager nobody gives the keys back to the window below.
    const QWidget* modal = QApplication::activeModalWidget();
    if (!window || (modal && modal != window)) return;
    window->activateWindow();
    settle();
}

void pickInList(DropList& list, std::string_view text) {
    for (int index = 0; index < list.ListCount(); ++index)
        if (list.List(index) == text) return pickInList(list, index);
    throw std::runtime_error("no entry \"" + std::string(text) + "\" in " + nameOf(list));
}

void type(QWidget& control, std::string_view text) {
    if (!reachable(control)) return;
    focusOn(control);
    for (const char sign : text) QTest::keyClick(windowOf(control), sign);
    settle();
}

void key(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (!reachable(control)) return;
    focusOn(control);
    QTest::keyClick(windowOf(control), key, modifiers);
    settle();
}

void trigger(QAction& entry) {
    if (!entry.isVisible() || !entry.isEnabled()) {
        ADD_FAILURE() << nameOf(entry) << " is " << (entry.isVisible() ? "disabled" : "hidden");
        return;
    }
    entry.trigger();
    settle();
}

void closeBox(QWidget& window) {
    window.windowHandle()->close();  // the way of a close that comes from the window system
    settle();
}

namespace {

void collect(QAccessibleInterface* one, const std::string& path, FocusControls& found) {
    const QObject* object = one ? one->object() : nullptr;
    // Rows and cells have no object; their text is their name.
    if (!object || !one->isValid() || one->state().invisible) return;
    const std::string here = path + "/" + utf8(object->objectName());
    if (one->state().focusable) {
        if (one->text(QAccessible::Name).trimmed().isEmpty())
            found.nameless.insert(here + " " + object->metaObject()->className());
        else
            ++found.named;
    }
    for (int i = 0; i < one->childCount(); ++i) collect(one->child(i), here, found);
}

}  // namespace

FocusControls focusControls(QWidget& window) {
    FocusControls found;
    collect(QAccessible::queryAccessibleInterface(&window), "", found);
    return found;
}

void settle() {
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool waitFor(const std::function<bool()>& condition, int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > milliseconds) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, pollMs);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

ScreenTest::ScreenTest()
    : host(utf8(directory.path())), program(DataAccess{host, store}, [this](int status) { leave(status); }) {
    host.onRuntimeError = [this](const RuntimeFailure& failure) {
        failure_ = failure;
        whileFailureShows();
    };
    application().setLastNet([this](const RuntimeFailure& failure) {
        stop("got past the event guard: " + std::to_string(failure.number()) + " " + failure.text());
    });
    watchdog_.callOnTimeout([this] {
        const QWidget* top = QApplication::activeModalWidget();
        stop("the test hangs" + (top ? " in " + nameOf(*top) : std::string()));
    });
    watchdog_.start(patienceMs);
}

ScreenTest::~ScreenTest() {
    application().setLastNet({});
}

void ScreenTest::stop(const std::string& why) {
    ADD_FAILURE() << why;
    std::fflush(nullptr);
    std::_Exit(failedStatus);
}

// The program's end. Only the process of endOf has one to tell of.
void ScreenTest::leave(int status) {
    const std::string texts[] = {std::to_string(failure_.number()), failure_.text(), failure_.refused(),
                                 failure_.during()};
    if (report_ < 0) stop("the program ended: " + texts[0] + " " + texts[1] + " " + texts[2]);
    for (const std::string& text : texts)
        if (::write(report_, text.c_str(), text.size() + 1) < 0) stop("the end can't be told");
    host.verify();
    std::fflush(nullptr);
    std::_Exit(HasFailure() ? failedStatus : status);
}

RuntimeFailure ScreenTest::endOf(const std::function<void()>& act) {
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    std::fflush(nullptr);
    QThreadPool::globalInstance()->waitForDone();  // threads that paint would not be there in the child
    const pid_t child = ::fork();
    if (child == 0) {
        report_ = ends[1];
        ::alarm(patienceMs / 1000);
        try {
            act();
            settle();
        } catch (const std::exception& failure) {
            stop(failure.what());
        }
        leave(0);
    }
    ::close(ends[1]);
    std::vector<std::string> texts(1);
    char sign = 0;
    while (::read(ends[0], &sign, 1) == 1) {
        if (sign == 0)
            texts.emplace_back();
        else
            texts.back() += sign;
    }
    ::close(ends[0]);
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    texts.resize(4);
    RuntimeFailure failure(texts[0].empty() ? wentOn : std::stoi(texts[0]), texts[1], texts[2]);
    failure.setDuring(texts[3]);
    EXPECT_TRUE(WIFEXITED(status)) << "it crashed";
    EXPECT_EQ(WEXITSTATUS(status), failure.number() == wentOn ? 0 : 1);
    return failure;
}

void ScreenTest::whenModal(std::function<void(QWidget& top)> act) {
    auto* poll = new QTimer(&watchdog_);
    waiting_.append(poll);
    const QPointer<QWidget> present = QApplication::activeModalWidget();
    QObject::connect(poll, &QTimer::timeout, poll, [this, poll, present, act] {
        QWidget* top = QApplication::activeModalWidget();
        if (!top || top == present || !top->isVisible()) return;
        poll->stop();
        poll->deleteLater();
        waiting_.removeOne(poll);
        const auto run = act;
        try {
            run(*top);
        } catch (const std::exception& failure) {
            stop("while " + nameOf(*top) + " stood: " + failure.what());
        }
    });
    poll->start(pollMs);
}

void ScreenTest::TearDown() {
    settle();
    if (!waiting_.isEmpty()) ADD_FAILURE() << "a modal window that was waited for has not come";
    host.verify();
}

}  // namespace torvane
