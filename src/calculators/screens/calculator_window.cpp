#include "calculators/screens/calculator_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include "calculators/screens/panel_view.h"
#include "calculators/screens/tab_strip.h"
#include "widgets/mnemonics.h"
#include "widgets/picture_button.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr std::string_view howToTransfer =
    "You can transfer any of the totals you want by Copying the desired total here and pasting in your bid sheet. Use "
    "Windows Copy-Paste command for the same. Shortcut key for Copy is {Ctrl+C} and for Paste is {Ctrl+V}";

}  // namespace

CalculatorWindow::CalculatorWindow(Program& program, const CalculatorGroup& group)
    : Form(program, group.name), group_(group) {}

void CalculatorWindow::build(QWidget& window) {
    window.setWindowTitle(QStringLiteral("Calculators"));
    setHelpContext(group_.helpContext);
    TabStrip1_ = new TabStrip(&window);
    TabStrip1_->setObjectName(QStringLiteral("TabStrip1"));
    for (const CalculatorTab& tab : group_.tabs) TabStrip1_->addTab(qstring(tab.caption), qstring(tab.toolTip));
    constexpr int frameAndMargins = 40;
    TabStrip1_->fitInto(window.screen()->availableGeometry().width() - frameAndMargins);
    on(*this, TabStrip1_, &TabStrip::Click, [this] {
        Which = static_cast<std::int16_t>(TabStrip1_->selectedIndex());
        Showframe();
    });
    QWidget* panels = makePanels();
    // The window opens large enough for every panel; on a small screen it can be made smaller.
    auto* area = new QScrollArea(&window);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(panels);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(TabStrip1_);
    layout->addWidget(area, 1);
    layout->addWidget(foot(&window));
    area->setMinimumSize(largestPanel());
    const int scrollBar = area->verticalScrollBar()->sizeHint().width();
    window.resize(layout->sizeHint().grownBy({0, 0, scrollBar, scrollBar}));
    area->setMinimumSize(0, 0);
}

// All panels lie one upon the other.
QWidget* CalculatorWindow::makePanels() {
    auto* panels = new QWidget;
    auto* cell = new QGridLayout(panels);
    cell->setContentsMargins(0, 0, 0, 0);
    for (const CalculatorTab& tab : group_.tabs) {
        if (!tab.panel || panels_.contains(tab.panel)) continue;
        auto* view = new PanelView(*this, tab.panel(), panels);
        giveMnemonics(*view);
        view->hide();
        cell->addWidget(view, 0, 0);
        panels_.emplace(tab.panel, view);
    }
    return panels;
}

QSize CalculatorWindow::largestPanel() const {
    QSize largest;
    for (const auto& [make, panel] : panels_) largest = largest.expandedTo(panel->sizeHint());
    return largest;
}

QWidget* CalculatorWindow::foot(QWidget* parent) {
    auto* foot = new QWidget(parent);
    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* help = new PictureButton(foot);
    help->setObjectName(QStringLiteral("cmdHelpMain"));
    help->setAccessibleName(QStringLiteral("How to Transfer?"));
    help->setPicture(QStringLiteral("help"));
    help->setPictureOnly(true);
    auto* label = new QLabel(QStringLiteral("How to Transfer?"), foot);
    label->setObjectName(qstring(group_.helpLabel));
    label->setBuddy(help);
    auto* close = new QPushButton(QStringLiteral("Clo&se"), foot);
    close->setObjectName(QStringLiteral("Command2"));
    layout->addWidget(help);
    layout->addWidget(label);
    layout->addStretch(1);
    layout->addWidget(close);
    on(*this, close, &QAbstractButton::clicked, [this] { Unload(); });
    on(*this, help, &QAbstractButton::clicked, [this] { program().speakHelp(howToTransfer); });
    return foot;
}

void CalculatorWindow::dropControls() {
    TabStrip1_ = nullptr;
    panels_.clear();
}

void CalculatorWindow::Form_Load() {
    program().StartUp(*this);
    openTab(group_.tabs.front());
}

void CalculatorWindow::Showframe() {
    Load();
    Unloadall();
    setHelpContext(group_.helpContext);
    const auto index = static_cast<std::size_t>(Which - 1);
    if (index < group_.tabs.size()) openTab(group_.tabs[index]);
}

void CalculatorWindow::Unloadall() {
    for (const auto& [make, panel] : panels_) panel->hide();
}

void CalculatorWindow::openTab(const CalculatorTab& tab) {
    PanelView& panel = *panels_.at(tab.panel);
    panel.open(tab.caption);
    setHelpContext(panel.helpContext());
}

// --- Group 1 ---------------------------------------------------------------------------------------------------------

frmCalculators::frmCalculators(Program& program, Form& scientific, CalculatorWindow& group2, CalculatorWindow& group3)
    : CalculatorWindow(program, calculatorGroups()[0]), scientific_(scientific), group2_(group2), group3_(group3) {}

void frmCalculators::Form_Load() {
    program().StartUp(*this);
    // Left and low, so that it and the main window are seen together.
    program().placing().moveTo(window(), {0, pixels(2500)});
}

void frmCalculators::Unloadall() {
    scientific_.Unload();
    group2_.Unload();
    group3_.Unload();
    CalculatorWindow::Unloadall();
}

// It waits for this window, which a menu shows afterwards: what is shown last stands in front and has the keys.
void frmCalculators::openScientific() {
    if (window().isVisible()) return scientific_.Show(*this);
    QTimer::singleShot(0, &window(),
                       [this] { asHandler(program(), standingWindow(), [this] { scientific_.Show(*this); }); });
}

void frmCalculators::openTab(const CalculatorTab& tab) {
    if (tab.opens == TabOpens::Panel) return CalculatorWindow::openTab(tab);
    if (tab.opens == TabOpens::Scientific) return openScientific();
    const Program::Doing doing(program(), "starting the conversions program");
    program().host().startProgram(program().host().programDirectory() + "/Convert.exe");
}

}  // namespace torvane
