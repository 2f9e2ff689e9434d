#include "support/screen_test.h"

#include <sys/wait.h>
#include <unistd.h>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGraphicsEffect>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QThreadPool>
#include <QWindow>

#include <fstream>
#include <iostream>
#include <stdexcept>

#include "screens/guarded_application.h"
#include "widgets/text_area.h"
#include "widgets/text_box.h"

namespace torvane {

namespace {

constexpr int patience = 20;  // seconds
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

bool focusOn(QWidget& control) {
    if (!reachable(control)) return false;
    if (!control.hasFocus()) control.setFocus(Qt::OtherFocusReason);
    return true;
}

QWindow* windowOf(const QWidget& control) {
    return control.window()->windowHandle();
}

void clickAt(QWidget& control, QPoint position, Qt::MouseButton button) {
    if (!reachable(control)) return;
    for (QWidget* around = control.parentWidget(); around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(&control);
    QTest::mouseClick(windowOf(control), button, {}, control.mapTo(control.window(), position));
    settle();
}

QPoint rowCentre(ReportList& list, int row) {
    const QModelIndex item = list.model()->index(row, 0);
    if (!item.isValid()) throw std::out_of_range(nameOf(list) + " has no row " + std::to_string(row));
    list.scrollTo(item);
    const QRect rect = list.visualRect(item.siblingAtColumn(list.columnAt(0)));
    return {std::min(rect.center().x(), list.viewport()->width() / 2), rect.center().y()};
}

std::string namesOf(const QWidget& in, const Names& controls, bool (QWidget::*has)() const) {
    std::string names;
    for (const std::string_view name : controls)
        if ((find<QWidget>(in, name).*has)()) names += (names.empty() ? "" : " ") + std::string(name);
    return names;
}

GuardedApplication& application() {
    return *static_cast<GuardedApplication*>(qApp);
}

}  // namespace

void failNotFound(const QObject& in, std::string_view name) {
    throw std::runtime_error("no \"" + std::string(name) + "\" in " + nameOf(in));
}

QWidget* standing(std::string_view name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && utf8(window->objectName()) == name) return window;
    return nullptr;
}

std::string text(const QWidget& in, std::string_view name) {
    QWidget& control = find<QWidget>(in, name);
    if (const auto* box = qobject_cast<TextBox*>(&control)) return box->Text();
    if (const auto* area = qobject_cast<TextArea*>(&control)) return area->Text();
    if (const auto* choices = qobject_cast<DropList*>(&control)) return choices->Text();
    return utf8(find<QLabel>(in, name).text());
}

std::string texts(const QWidget& in, const Names& controls) {
    std::string all;
    for (const std::string_view& name : controls) all += (&name == &controls.front() ? "" : "|") + text(in, name);
    return all;
}

std::string visible(const QWidget& in, const Names& controls) {
    return namesOf(in, controls, &QWidget::isVisible);
}

std::string enabled(const QWidget& in, const Names& controls) {
    return namesOf(in, controls, &QWidget::isEnabled);
}

ReportList& list(const QWidget& in) {
    return find<ReportList>(in, "ListView1");
}

Texts rows(const QWidget& in) {
    const ReportList& view = list(in);
    Texts all;
    for (int row = 0; row < view.RowCount(); ++row) {
        std::string& cells = all.emplace_back(view.Cell(row, 0));
        for (int column = 1; column < view.columnCount(); ++column) cells += "|" + view.Cell(row, column);
    }
    return all;
}

std::set<std::string> badControls(QWidget& window) {
    std::set<std::string> bad;
    std::map<QString, std::vector<std::string>> places;
    // A frame that is set off by a shadow lies above on purpose.
    const auto seen = [](const QWidget& control) { return control.isVisible() && !control.graphicsEffect(); };
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const QWidget& parent = *control->parentWidget();
        if (!seen(*control)) continue;
        if (!parent.rect().contains(control->geometry()) && nameOf(parent) != "qt_scrollarea_viewport")
            bad.insert(nameOf(*control) + " is cut");
        for (const QWidget* other : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (other != control && seen(*other) &&
                control->geometry().intersects(other->geometry().adjusted(1, 1, -1, -1)))  // borders may meet
                bad.insert(nameOf(*control) + " lies upon " + nameOf(*other));
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
        if (nameOf(*control).starts_with("qt_") || !told->state().focusable) continue;
        QString name = told->text(QAccessible::Name);
        // Of a drop-down list that is the entry that is selected; it is known by its description or its label.
        if (qobject_cast<QComboBox*>(control)) name = told->text(QAccessible::Description);
        const auto labels = told->relations(QAccessible::Label);
        if (name.isEmpty() && !labels.isEmpty()) name = labels.constFirst().first->text(QAccessible::Name);
        places[name.trimmed()].push_back(nameOf(parent) + "/" + nameOf(*control));
    }
    for (const auto& [name, controls] : places)
        if (name.isEmpty() || controls.size() > 1) bad.insert(controls.begin(), controls.end());
    return bad;
}

void click(QWidget& control, Qt::MouseButton button) {
    clickAt(control, control.rect().center(), button);
}

void click(const QWidget& in, std::string_view control) {
    click(find<QWidget>(in, control));
}

void clickRow(ReportList& list, int row, Qt::MouseButton button) {
    clickAt(*list.viewport(), rowCentre(list, row), button);
}

void doubleClickRow(ReportList& list, int row) {
    if (!reachable(list)) return;
    QTest::mouseDClick(windowOf(list), Qt::LeftButton, {}, list.viewport()->mapTo(list.window(), rowCentre(list, row)));
    settle();
}

void clickHeader(ReportList& list, int column) {
    QHeaderView& header = *list.header();
    const int left = header.sectionViewportPosition(column);
    clickAt(*header.viewport(), {left + header.sectionSize(column) / 2, header.height() / 2}, Qt::LeftButton);
}

void pickInList(DropList& list, int index) {
    const QPointer<QWidget> window = list.window();  // the pick may close it
    if (!focusOn(list)) return;
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
    const int index = list.findText(qstring(text), Qt::MatchExactly);
    if (index < 0) failNotFound(list, text);
    pickInList(list, index);
}

void type(QWidget& control, std::string_view text) {
    if (!focusOn(control)) return;
    for (const char sign : text) QTest::keyClick(windowOf(control), sign);
    settle();
}

void key(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (!focusOn(control)) return;
    QTest::keyClick(windowOf(control), key, modifiers);
    settle();
}

void trigger(QAction& entry) {
    ASSERT_TRUE(entry.isVisible() && entry.isEnabled()) << nameOf(entry);
    entry.trigger();
    settle();
}

void closeBox(QWidget& window) {
    window.windowHandle()->close();  // the way of a close that comes from the window system
    settle();
}

void settle() {
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

ScreenTest::ScreenTest()
    : host(utf8(directory.path())), program(DataAccess{host, store}, [this](int status) { leave(status); }) {
    ::alarm(patience);  // ends a test that waits in a modal window
    host.onRuntimeError = [this](const RuntimeFailure& failure) {
        failure_ = failure;
        whileFailureShows();
    };
    application().setLastNet([this](const RuntimeFailure& failure) { stop("got past the event guard", failure); });
}

ScreenTest::~ScreenTest() {
    application().setLastNet({});
}

void ScreenTest::TearDown() {
    settle();
    EXPECT_TRUE(waiting_.children().isEmpty()) << "a modal window that was waited for has not come";
    host.verify();
}

void ScreenTest::go(const QWidget& in, std::string_view steps, const std::vector<TestHost::Box>& boxes) {
    for (const TestHost::Box& box : boxes) host.expect(box);
    takeSteps(in, steps, {});
    host.verify();
}

void ScreenTest::tell(const QWidget& in, const std::function<std::string()>& look,
                      const std::vector<StoryStep>& story) {
    for (const StoryStep& step : story) {
        SCOPED_TRACE(step.steps);
        go(in, step.steps, step.boxes);
        EXPECT_EQ(look(), step.shows);
    }
}

void ScreenTest::takeSteps(const QWidget& in, std::string_view steps, std::function<void(QWidget&)> inModal) {
    const QString here = qstring(steps).section(" > ", 0, 0), there = qstring(steps).section(" > ", 1);
    if (!there.isEmpty()) inModal = [this, there](QWidget& form) { takeSteps(form, utf8(there), {}); };
    const QStringList each = here.split("; ");
    for (const QString& one : each) {
        if (&one == &each.back() && inModal) whenModal(inModal);
        const std::string name = utf8(one.section('=', 0, 0)), value = utf8(one.section('=', 1));
        if (one == "close") {
            closeBox(*in.window());
        } else if (one.startsWith("row ")) {
            const int row = one.section(' ', 1, 1).toInt();
            one.endsWith(" twice") ? doubleClickRow(list(in), row) : clickRow(list(in), row);
        } else if (!one.contains('=')) {
            click(in, name);
        } else if (auto* choices = in.findChild<DropList*>(qstring(name))) {
            pickInList(*choices, value);
        } else {
            auto& box = find<QWidget>(in, name);
            click(box);
            key(box, Qt::Key_A, Qt::ControlModifier);
            key(box, Qt::Key_Delete);
            type(box, value);
        }
    }
}

void ScreenTest::whenModal(std::function<void(QWidget& top)> act) {
    auto* poll = new QTimer(&waiting_);
    const QPointer<QWidget> present = QApplication::activeModalWidget();
    poll->callOnTimeout([poll, present, act] {
        QWidget* top = QApplication::activeModalWidget();
        if (!top || top == present || !top->isVisible()) return;
        const auto run = act;  // goes with the timer
        poll->stop();
        poll->deleteLater();
        run(*top);
    });
    poll->start(pollMs);
}

void ScreenTest::stop(const char* why, const RuntimeFailure& failure) {
    ADD_FAILURE() << why << ": " << failure.number() << " " << failure.text() << " " << failure.refused();
    std::fflush(nullptr);
    std::_Exit(failedStatus);
}

// The program's end. Only the process of endOf has one, and leaves what it ended by in a file.
void ScreenTest::leave(int status) {
    if (!mayEnd_) stop("the program ended", failure_);
    std::ofstream told(endFile());
    told << failure_.number() << '\0' << failure_.text() << '\0' << failure_.refused() << '\0' << failure_.during();
    told.close();
    host.verify();
    std::fflush(nullptr);
    std::_Exit(HasFailure() ? failedStatus : status);
}

RuntimeFailure ScreenTest::endOf(const std::function<void()>& act) {
    std::remove(endFile().c_str());
    std::fflush(nullptr);
    QThreadPool::globalInstance()->waitForDone();  // threads that paint would not be there in the child
    const pid_t child = ::fork();
    if (child == 0) {
        mayEnd_ = true;
        ::alarm(patience);
        [&]() noexcept { act(), settle(); }();
        leave(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    std::ifstream told(endFile());
    std::string texts[4];
    for (std::string& text : texts) std::getline(told, text, '\0');
    RuntimeFailure failure(texts[0].empty() ? wentOn : std::stoi(texts[0]), texts[1], texts[2]);
    failure.setDuring(texts[3]);
    EXPECT_TRUE(WIFEXITED(status)) << "it crashed";
    EXPECT_EQ(WEXITSTATUS(status), failure.number() == wentOn ? 0 : 1);
    return failure;
}

std::string ScreenTest::endedBy(const std::function<void()>& act) {
    const RuntimeFailure failure = endOf(act);
    return std::to_string(failure.number()) + " " + failure.refused();
}

}  // namespace torvane

// One application object for all tests of the program; without a screen unless one is asked for, in a home of its own,
// where no test may leave a dialog's settings.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // A thread that ends may hold a lock of this library's at a fork (endOf), and the child would wait for it for ever.
    qputenv("QT_NO_GLIB", "1");
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) qunsetenv(folder);
    torvane::GuardedApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        // The screenless platform complains at each window that it cannot raise.
        if (!message.startsWith("This plugin does not support")) std::cerr << message.toStdString() << std::endl;
    });
    const int failed = RUN_ALL_TESTS();
    if (!QFile::exists(home.filePath(".config"))) return failed;
    std::cerr << "a file of settings was left" << std::endl;
    return 1;
}
