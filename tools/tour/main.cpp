// The tour: takes the real windows along the road of a new estimate (road.txt), on the sample business, and leaves a
// picture of each window and the proposal as PDF.
//
//   tour [--dark] [--large] <program folder> <folder for the pictures>
//
// With --dark the windows wear the colours of a dark desktop, with --large they are in type half as large again.
// It ends with status 0 when every step was reached, and says where it stopped otherwise.

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <functional>

#include "assistant/animated_assistant.h"
#include "conversions/screens/conversion_window.h"
#include "screens/guarded_application.h"
#include "screens/qt_host.h"
#include "shell/screens.h"
#include "widgets/drop_list.h"
#include "widgets/report_list.h"
#include "widgets/texts.h"

namespace torvane {
namespace {

[[noreturn]] void stop(const QString& why) {
    std::fprintf(stderr, "The tour stopped: %s\n", qPrintable(why));
    leaveProcess(1);
}

QPalette darkColours() {
    QPalette colours(QColor("#353535"), QColor("#2d2d2d"));
    colours.setColor(QPalette::Base, QColor("#1e1e1e"));
    colours.setColor(QPalette::AlternateBase, QColor("#292929"));
    colours.setColor(QPalette::Highlight, QColor("#2a6fb5"));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Link, QColor("#6cb2f5"));
    return colours;
}

struct Step {
    QString window;
    QString act;
    QString control;  // "-": the window itself
    QString text;
};

QList<Step> readRoad() {
    QFile file(QStringLiteral(":/road.txt"));
    if (!file.open(QIODevice::ReadOnly)) stop(QStringLiteral("it has no road"));
    QList<Step> road;
    QString window;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QString words = line.trimmed();
        if (words == line)
            window = line;
        else
            road.append({window, words.section(' ', 0, 0), words.section(' ', 1, 1), words.section(' ', 2)});
    }
    return road;
}

template <class Control>
Control& as(QWidget& control) {
    auto* found = qobject_cast<Control*>(&control);
    if (!found) stop(control.objectName() + " is of another kind");
    return *found;
}

// --- Acts ------------------------------------------------------------------------------------------------------------

void click(QWidget& control, const QString&) {
    QTest::mouseClick(&control, Qt::LeftButton);
}

void press(QWidget& box, const QString& caption) {
    for (auto* button : box.findChildren<QAbstractButton*>())
        if (button->text().remove('&') == caption) return click(*button, {});
    stop(QStringLiteral("there is no button %1").arg(caption));
}

void key(QWidget& control, const QString& name) {
    QTest::keyClick(&control, static_cast<Qt::Key>(QKeySequence(name)[0].key()));
}

void type(QWidget& box, const QString& text) {
    box.setFocus();
    as<QLineEdit>(box).selectAll();
    QTest::keyClicks(&box, text);
}

void pick(QWidget& box, const QString& text) {
    auto& list = as<DropList>(box);
    const int index = list.findText(text, Qt::MatchExactly);
    if (index < 0) stop(QStringLiteral("%1 has no entry %2").arg(box.objectName(), text));
    list.setFocus();
    list.select(index);
}

void pickInTree(QWidget& control, const QString& text) {
    auto& tree = as<QTreeView>(control);
    const QAbstractItemModel& nodes = *tree.model();
    const auto found = nodes.match(nodes.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) stop(QStringLiteral("the tree has no %1").arg(text));
    tree.setCurrentIndex(found.constFirst());
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Return);
}

void doubleClick(QWidget& control, const QString& row) {
    auto& list = as<ReportList>(control);
    const QPoint point(30, list.visualRect(list.model()->index(row.toInt(), list.columnAt(0))).center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, point);
}

// --- The tour --------------------------------------------------------------------------------------------------------

class Tour {
public:
    Tour(const QString& programFolder, const QString& folder) : programFolder_(programFolder), folder_(folder) {
        later();
    }

private:
    static constexpr int pauseMs = 30;  // in which the windows settle and paint
    static constexpr int patienceMs = 20000;

    void later() {
        QTimer::singleShot(pauseMs, qApp, [this] { go(); });
    }

    // Takes the next step once its control can be reached. A step may open a modal window, and then it comes back only
    // when the steps after it have closed that one: so the next is on its way before.
    void go() {
        if (road_.isEmpty()) return QCoreApplication::exit(0);
        QWidget* const control = reachable(road_.constFirst());
        waited_ = control ? 0 : waited_ + pauseMs;
        const Step step = control ? road_.takeFirst() : road_.constFirst();
        if (waited_ > patienceMs) stop(QStringLiteral("%1 of %2 can't be reached").arg(step.control, step.window));
        later();
        if (!control) return;
        const auto act = acts_.find(step.act);
        if (act == acts_.end()) stop(QStringLiteral("%1 is no act").arg(step.act));
        act->second(*control, step.text);
    }

    static QWidget* reachable(const Step& step) {
        const QWidget* modal = QApplication::activeModalWidget();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() != step.window || !window->isVisible() || (modal && modal != window)) continue;
            auto* control = step.control == "-" ? window : window->findChild<QWidget*>(step.control);
            if (!control || !control->isVisible() || !control->isEnabled()) continue;
            if (step.act != "says" || as<QLabel>(*control).text() == step.text) return control;
        }
        return nullptr;
    }

    // Every tab of a strip. One starts another program, whose window is made here instead.
    void tabs(QWidget& strip) {
        const QString window = strip.window()->objectName();
        QList<Step> steps;
        for (auto* tab : strip.findChildren<QAbstractButton*>()) {
            const QString caption = tab->text();
            if (caption == "Conversions") {
                ConversionWindow conversions;
                picture(conversions, "conversions", conversions.rect());
                continue;
            }
            const QString shown = caption == "Scientific Calculator" ? QStringLiteral("scientific") : window;
            steps.append({window, "click", tab->objectName(), {}});
            steps.append({shown, "picture", "-", caption.toLower().replace(' ', '-')});
            if (shown == window) steps.append({window, "panel", "-", {}});
        }
        road_ = steps + road_;
    }

    // The controls of a calculator's panel, by the name of its frame: what the help book has of it.
    void panel(QWidget& window) {
        constexpr int margin = 8;
        for (QWidget* frame : window.findChildren<QWidget*>(QRegularExpression(QStringLiteral("^frmTab"))))
            if (frame->isVisible())
                picture(*frame, frame->objectName(),
                        frame->childrenRect().adjusted(-margin, -margin, margin, margin) & frame->rect());
    }

    void picture(QWidget& window, const QString& name, const QRect& part) {
        const QString number = QStringLiteral("%1").arg(++pictures_, 2, 10, QLatin1Char('0'));
        const QString file = folder_.filePath(QStringLiteral("%1-%2.png").arg(number, name));
        if (!window.grab(part).save(file)) stop(QStringLiteral("%1 can't be written").arg(file));
        std::printf("%s\n", qPrintable(file));
    }

    using Take = std::function<void(QWidget& control, const QString& text)>;
    const std::map<QString, Take> acts_{
        {"entry", [](QWidget& menus, const QString& name) { menus.findChild<QAction*>(name)->trigger(); }},
        {"click", click},
        {"press", press},  // the button of this caption
        {"close", [](QWidget& window, const QString&) { window.close(); }},
        {"key", key},
        {"type", type},  // over what stands there
        {"note", [this](QWidget& box, const QString&) { noted_ = as<QLineEdit>(box).text(); }},
        {"typeNoted", [this](QWidget& box, const QString&) { type(box, noted_); }},
        {"openFile",
         [this](QWidget& box, const QString& name) { as<QLineEdit>(box).setText(programFolder_.filePath(name)); }},
        {"saveFile", [this](QWidget& box, const QString& name) { as<QLineEdit>(box).setText(folder_.filePath(name)); }},
        {"pick", pick},
        {"pickInTree", pickInTree},
        {"doubleClick", doubleClick},               // a row, from 0
        {"says", [](QWidget&, const QString&) {}},  // the step waits for it
        {"tabs", [this](QWidget& strip, const QString&) { tabs(strip); }},
        {"picture", [this](QWidget& window, const QString& name) { picture(window, name, window.rect()); }},
        {"panel", [this](QWidget& window, const QString&) { panel(window); }},
    };

    const QDir programFolder_;
    const QDir folder_;
    QList<Step> road_ = readRoad();  // what is still to do
    int waited_ = 0;                 // milliseconds, for the next step
    int pictures_ = 0;
    QString noted_;
};

}  // namespace
}  // namespace torvane

int main(int argc, char** argv) {
    using namespace torvane;
    GuardedApplication application(argc, argv);
    QStringList words = QCoreApplication::arguments();
    if (words.removeAll(QStringLiteral("--dark")) > 0) QApplication::setPalette(darkColours());
    if (words.removeAll(QStringLiteral("--large")) > 0) {
        QFont large = QApplication::font();
        large.setPointSizeF(large.pointSizeF() * 1.5);
        QApplication::setFont(large);
    }
    if (words.size() != 3) stop(QStringLiteral("it needs the program's folder and a folder for the pictures"));
    const QString programFolder = QDir(words.at(1)).absolutePath();
    QtHost host(utf8(programFolder));
    Store store(host.shortDate());
    FileSystem files;
    Program program({host, store}, leaveProcess);
    application.setLastNet([&program](const RuntimeFailure& failure) { program.guard().end(failure); });
    Screens screens(program, files, false,
                    [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
    program.guarded([&screens] { screens.mainMenu.Show(); });
    const Tour tour(programFolder, QDir(words.at(2)).absolutePath());
    return QApplication::exec();
}
