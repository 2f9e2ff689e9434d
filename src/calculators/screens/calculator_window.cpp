#include "calculators/screens/calculator_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "platform/controls.h"

namespace torvane {

namespace {

constexpr int tabsInARow = 4;

}  // namespace

CalculatorWindow::CalculatorWindow(Program& program, const CalculatorGroup& group)
    : Form(program, group.name.data()), group_(group) {}

void CalculatorWindow::build(QWidget& window) {
    window.setWindowTitle(QStringLiteral("Calculators"));
    auto* layout = new QVBoxLayout(&window);

    // All captions in view at once, in rows: a strip that scrolls would hide most of them.
    auto* strip = new QWidget(&window);
    strip->setObjectName(QStringLiteral("TabStrip1"));
    auto* tabs = new QGridLayout(strip);
    tabs->setContentsMargins(0, 0, 0, 0);
    tabs->setSpacing(2);
    int index = 0;
    for (const CalculatorTab& tab : group_.tabs) {
        auto* button = new QToolButton(strip);
        button->setObjectName(QStringLiteral("TabStrip1_%1").arg(index + 1));
        button->setText(qstring(tab.caption));
        button->setToolTip(qstring(tab.toolTip.empty() ? tab.caption : tab.toolTip));
        button->setCheckable(true);
        button->setAutoExclusive(true);
        button->setChecked(index == 0);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        on(*this, button, &QAbstractButton::clicked,
           [this] { program().speakHelp("This calculator is not there yet."); });
        tabs->addWidget(button, index / tabsInARow, index % tabsInARow);
        ++index;
    }
    layout->addWidget(strip);
    layout->addStretch(1);

    auto* foot = new QHBoxLayout;
    auto* help = new PictureButton(&window);
    help->setObjectName(QStringLiteral("cmdHelpMain"));
    help->setAccessibleName(QStringLiteral("How to Transfer?"));
    help->setPicture(QStringLiteral("help"));
    help->setPictureOnly(true);
    auto* label = new QLabel(QStringLiteral("How to Transfer?"), &window);
    label->setObjectName(qstring(group_.helpLabel));
    label->setBuddy(help);
    auto* close = new QPushButton(QStringLiteral("Close"), &window);
    close->setObjectName(QStringLiteral("Command2"));
    foot->addWidget(help);
    foot->addWidget(label);
    foot->addStretch(1);
    foot->addWidget(close);
    layout->addLayout(foot);
    window.resize(820, 520);

    on(*this, close, &QAbstractButton::clicked, [this] { Unload(); });
    on(*this, help, &QAbstractButton::clicked, [this] {
        program().speakHelp(
            "You can transfer any of the totals you want by Copying the desired total here and pasting in your bid "
            "sheet. Use Windows Copy-Paste command for the same. Shortcut key for Copy is {Ctrl+C} and for Paste is "
            "{Ctrl+V}");
    });
}

void CalculatorWindow::Form_Load() {
    program().StartUp(*this);
}

}  // namespace torvane
