#include "calculators/screens/scientific.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>
#include <algorithm>

#include "calculators/screens/key_preview.h"
#include "calculators/screens/scientific_key.h"
#include "values/failure.h"
#include "widgets/text_box.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr int helpPage = 30;
constexpr double widthInTwips = 6540;
constexpr double heightInTwips = 4735;

// --- Keys ------------------------------------------------------------------------------------------------------------

using Press = void (*)(ScientificMachine&, int);
template <auto method>
constexpr Press presses = [](ScientificMachine& machine, int index) {
    if constexpr (std::is_invocable_v<decltype(method), ScientificMachine&, int>)
        (machine.*method)(index);
    else
        (machine.*method)();
};
using M = ScientificMachine;

constexpr int noIndex = -1;
constexpr int gapColumn = 5;

// The order is the order of Tab. A key without a press has nothing behind it; "EXIT" has the window's own.
struct KeyPlace {
    const char* array;
    int index;
    const char* caption;
    const char* says;  // "" where the caption says it
    int row;
    int column;
    Press press;
    int width = 1;
};
constexpr KeyPlace keys[] = {
    {"Command5", 0, "sin", "sine", 0, 0, presses<&M::Command5>},
    {"Command5", 1, "cos", "cosine", 0, 1, presses<&M::Command5>},
    {"Command5", 2, "tan", "tangent", 0, 2, presses<&M::Command5>},
    {"Command10", 0, "ln", "natural logarithm", 0, 3, presses<&M::Command10>},
    {"Command10", 1, "log", "logarithm to base 10", 0, 4, presses<&M::Command10>},
    {"Command5", 3, "asin", "arc sine", 1, 0, presses<&M::Command5>},
    {"Command5", 4, "acos", "arc cosine", 1, 1, presses<&M::Command5>},
    {"Command5", 5, "atan", "arc tangent", 1, 2, presses<&M::Command5>},
    {"Command10", 2, "e(x]", "e to the power of the number", 1, 3, presses<&M::Command10>},
    {"Command6", 4, "n !", "factorial", 1, 4, presses<&M::Command6>},
    {"Command6", 1, "X ²", "square", 2, 0, presses<&M::Command6>},
    {"Command6", 8, "X ³", "cube", 2, 1, presses<&M::Command6>},
    {"Command6", 2, "Sq[x]", "square root", 2, 2, presses<&M::Command6>},
    {"Command6", 0, "1/ X", "reciprocal", 2, 3, presses<&M::Command6>},
    {"Command2", 8, "xPOy", "to the power", 2, 4, presses<&M::Command2>},
    {"Command2", 5, "ncr", "combinations", 3, 0, presses<&M::Command2>},
    {"Command2", 7, "npr", "permutations", 3, 1, presses<&M::Command2>},
    {"Command12", 0, "AND", "and", 3, 2, nullptr},
    {"Command12", 1, "OR", "or", 3, 3, nullptr},
    {"Command12", 2, "NOT", "not", 3, 4, nullptr},
    {"Command9", 0, "Rnd", "random number", 4, 0, presses<&M::Command9>},
    {"Command9", 1, "pi", "", 4, 1, presses<&M::Command9>},
    {"Command9", 2, "e", "", 4, 2, presses<&M::Command9>},
    {"Command9", 3, "g", "acceleration of gravity", 4, 3, presses<&M::Command9>},
    {"Command9", 4, "h", "Planck's constant", 4, 4, presses<&M::Command9>},
    {"Command8", 0, "push", "push onto the saved list", 5, 0, presses<&M::Command8>},
    {"Command8", 1, "View", "view the next saved number", 5, 1, presses<&M::Command8>},
    {"Command8", 2, "del", "delete the last saved number", 5, 2, presses<&M::Command8>},
    {"Command8", 3, "copy", "copy the saved number to the display", 5, 3, presses<&M::Command8>},
    {"Command13", noIndex, "EXIT", "exit", 5, 4, nullptr},
    {"Command7", 5, "MC", "memory clear", 0, 6, presses<&M::Command7>},
    {"Command7", 4, "MR", "memory recall", 0, 7, presses<&M::Command7>},
    {"Command11", noIndex, "Back", "delete the last character", 0, 8, presses<&M::Command11>},
    {"Command3", noIndex, "C", "clear entry", 0, 9, presses<&M::Command3>},
    {"Command4", noIndex, "AC", "clear all", 0, 10, presses<&M::Command4>},
    {"Command7", 0, "M +", "memory plus", 1, 6, presses<&M::Command7>},
    {"Command1", 7, "7", "", 1, 7, presses<&M::Command1>},
    {"Command1", 8, "8", "", 1, 8, presses<&M::Command1>},
    {"Command1", 9, "9", "", 1, 9, presses<&M::Command1>},
    {"Command2", 2, "/", "divided by", 1, 10, presses<&M::Command2>},
    {"Command7", 1, "M -", "memory minus", 2, 6, presses<&M::Command7>},
    {"Command1", 4, "4", "", 2, 7, presses<&M::Command1>},
    {"Command1", 5, "5", "", 2, 8, presses<&M::Command1>},
    {"Command1", 6, "6", "", 2, 9, presses<&M::Command1>},
    {"Command2", 3, "*", "times", 2, 10, presses<&M::Command2>},
    {"Command7", 2, "M *", "memory times", 3, 6, presses<&M::Command7>},
    {"Command1", 1, "1", "", 3, 7, presses<&M::Command1>},
    {"Command1", 2, "2", "", 3, 8, presses<&M::Command1>},
    {"Command1", 3, "3", "", 3, 9, presses<&M::Command1>},
    {"Command2", 1, "-", "minus", 3, 10, presses<&M::Command2>},
    {"Command7", 3, "M /", "memory divided by", 4, 6, presses<&M::Command7>},
    {"Command1", 0, "0", "", 4, 7, presses<&M::Command1>},
    {"Command1", 11, "00", "two zeros", 4, 8, presses<&M::Command1>},
    {"Command1", 10, ".", "point", 4, 9, presses<&M::Command1>},
    {"Command2", 0, "+", "plus", 4, 10, presses<&M::Command2>},
    {"Command14", noIndex, "±", "change of sign", 5, 6, presses<&M::Command14>},
    {"Command2", 6, "%", "remainder", 5, 7, presses<&M::Command2>},
    {"Command2", 4, "=", "equals", 5, 8, presses<&M::Command2>, 3},
};

std::string pressing(std::string_view key) {
    return "pressing \"" + std::string(key) + "\" on the scientific calculator";
}

QString nameOf(const KeyPlace& place) {
    const QString array = QLatin1String(place.array);
    return place.index == noIndex ? array : QStringLiteral("%1_%2").arg(array).arg(place.index);
}

QLabel* greenLabel(const char* name, const char* says, Qt::Alignment alignment) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setAccessibleName(QLatin1String(says));
    label->setToolTip(QLatin1String(says));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setContentsMargins(4, 0, 4, 0);  // in line with the display
    // However long the text is, the window keeps its width.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, Qt::green);
    label->setPalette(colours);
    return label;
}

}  // namespace

scientific::scientific(Program& program, std::function<void()> showAbout)
    : Form(program, "scientific"), showAbout_(std::move(showAbout)) {
    setHelpContext(helpPage);
}

// --- The window ------------------------------------------------------------------------------------------------------

void scientific::build(QWidget& window) {
    window.setWindowTitle(QStringLiteral("# Scientific Calc #"));
    machine_ = std::make_unique<ScientificMachine>(static_cast<CalculatorDesk&>(*this));
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(4);
    auto* bar = new QMenuBar(&window);
    layout->setMenuBar(bar);
    auto* top = new QHBoxLayout;
    top->addWidget(buildDisplay(), 1);
    top->addWidget(buildAngle());
    layout->addLayout(top);
    layout->addWidget(buildKeys(), 1);
    buildMenus(*bar);
    connectText1();

    new KeyPreview(window,
                   [this, &window](char character) { asHandler(program(), &window, [&] { keyPressed(character); }); });
    window.findChild<QWidget*>(QStringLiteral("Command2_4"))->setFocus();  // where Enter means equals
    window.resize(QSize(pixels(widthInTwips), pixels(heightInTwips)));
}

QWidget* scientific::buildDisplay() {
    constexpr double enlarged = 1.8;
    auto* display = new QWidget;
    QPalette black = display->palette();
    black.setColor(QPalette::Window, Qt::black);
    display->setPalette(black);
    display->setAutoFillBackground(true);

    Text1_ = new TextBox;
    Text1_->setObjectName(QStringLiteral("Text1"));
    Text1_->setAccessibleName(QStringLiteral("display"));
    Text1_->setFrame(false);
    Text1_->setAlignment(Qt::AlignRight);
    QPalette colours = Text1_->palette();
    colours.setColor(QPalette::Base, Qt::black);
    colours.setColor(QPalette::Text, Qt::red);
    Text1_->setPalette(colours);
    QFont large = Text1_->font();
    large.setPointSizeF(large.pointSizeF() * enlarged);
    Text1_->setFont(large);

    Label1_ = greenLabel("Label1", "saved number", Qt::AlignLeft);
    Label2_ = greenLabel("Label2", "copy of the display", Qt::AlignRight);
    QFont bold = Label2_->font();
    bold.setBold(true);
    Label2_->setFont(bold);

    auto* rows = new QVBoxLayout(display);
    rows->setContentsMargins(6, 3, 6, 3);
    rows->setSpacing(0);
    rows->addWidget(Label1_);
    rows->addWidget(Text1_, 1);
    rows->addWidget(Label2_);
    return display;
}

QWidget* scientific::buildAngle() {
    auto* frame = new QGroupBox(QStringLiteral("angle"));
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(6, 2, 6, 2);
    rows->setSpacing(0);
    const std::pair<const char*, const char*> units[] = {{"deg", "degrees"}, {"rad", "radians"}, {"grd", "grads"}};
    int index = 0;
    for (const auto& [caption, says] : units) {
        auto* option = new QRadioButton(QLatin1String(caption), frame);
        option->setObjectName(QStringLiteral("Option2_%1").arg(index));
        option->setAccessibleName(QStringLiteral("angle in ") + QLatin1String(says));
        option->setToolTip(QLatin1String(says));
        option->setChecked(index == 0);
        on(*this, option, &QAbstractButton::toggled, [this, index](bool chosen) {
            if (chosen) machine_->Option2(index);
        });
        rows->addWidget(option);
        ++index;
    }
    return frame;
}

QWidget* scientific::buildKeys() {
    constexpr int gap = 4;
    auto* frame = new QGroupBox(QStringLiteral("SCIENTIFIC"));
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(4, 2, 4, 4);
    grid->setSpacing(2);
    grid->setColumnMinimumWidth(gapColumn, gap);
    // In a group the arrow keys go to the neighbours.
    keys_ = new QButtonGroup(frame);
    for (const KeyPlace& place : keys) {
        auto* key = new ScientificKey(QString::fromUtf8(place.caption), frame);
        key->setObjectName(nameOf(place));
        key->setAccessibleName(*place.says ? QLatin1String(place.says) : QLatin1String(place.caption));
        key->setToolTip(QLatin1String(place.says));
        if (place.press)
            on(*this, key, &QAbstractButton::clicked, [this, &place] {
                const Program::Doing doing(program(), pressing(place.caption));
                place.press(*machine_, place.index);
            });
        else if (std::string_view(place.array) == "Command13")
            on(*this, key, &QAbstractButton::clicked, &Form::Unload);
        keys_->addButton(key);
        grid->addWidget(key, place.row, place.column, 1, place.width);
        if (place.width == 1) grid->setColumnStretch(place.column, 1);
    }
    return frame;
}

void scientific::buildMenus(QMenuBar& bar) {
    const auto add = [this](QMenu* menu, const char* caption, const char* name, const char* shortcut, auto act) {
        QAction* action = menu->addAction(QLatin1String(caption));
        action->setObjectName(QLatin1String(name));
        action->setShortcut(QKeySequence(QLatin1String(shortcut)));
        on(*this, action, &QAction::triggered, act);
        return action;
    };
    QMenu* edit = bar.addMenu(QStringLiteral("&Edit"));
    add(edit, "&Cut", "ecut", "Ctrl+X", [this] { machine_->ecut(); });
    add(edit, "C&opy", "ecopy", "Ctrl+C", [this] { machine_->ecopy(); });
    add(edit, "&Paste", "epaste", "Ctrl+V", [this] { machine_->epaste(); });
    add(edit, "Select &All", "eselectall", "Ctrl+A", [this] { machine_->eselectall(); });
    add(edit, "&Exit", "eexit", "", [this] { Unload(); });
    QMenu* type = bar.addMenu(QStringLiteral("&Type"));
    add(type, "S&tandard", "tstandard", "Ctrl+T", [this] { missingCalculator(); });
    add(type, "S&cieintific", "tscientific", "Ctrl+E", [this] { Show(), missingCalculator(); });
    QMenu* help = bar.addMenu(QStringLiteral("&Help"));
    QAction* contents = add(help, "&Contents", "hcontents", "F1", [this] { program().help(helpContext()); });
    contents->setShortcutContext(Qt::WidgetShortcut);  // it has this key in every window; here it is only shown
    add(help, "&About", "habout", "", [this] { showAbout_(); });
}

void scientific::missingCalculator() {
    const Program::Doing doing(program(), "opening the calculator of this type");
    fail(Failure::ObjectNotSet);
}

void scientific::connectText1() {
    on(*this, Text1_, &QLineEdit::textChanged, [this](const QString& text) { machine_->setText1(utf8(text)); });
    // The selection is remembered when the focus leaves the box for a menu and it is no longer shown.
    on(*this, Text1_, &QLineEdit::selectionChanged, [this] {
        if (!Text1_->hasFocus()) return;
        const std::string before = utf8(Text1_->text().left(std::max(Text1_->selectionStart(), 0)));
        machine_->select(before.size(), utf8(Text1_->selectedText()).size());
    });
}

void scientific::dropControls() {
    Text1_ = nullptr;
    Label1_ = Label2_ = nullptr;
    keys_ = nullptr;
}

void scientific::Form_Load() {
    program().StartUp(*this);
    machine_->Form_Load();
    textsChanged();
}

void scientific::keyPressed(char character) {
    const Program::Doing doing(program(), pressing(std::string(1, character)));
    if (!machine_->KeyPress(character) || !keys_) return;
    for (QAbstractButton* key : keys_->buttons())
        if (key->text() == QLatin1Char(character)) static_cast<ScientificKey*>(key)->light();
}

// --- The desk of the machine -----------------------------------------------------------------------------------------

void scientific::say(std::string_view message) {
    program().say(message, defaultTitle);
}

void scientific::clearClipboard() {
    QGuiApplication::clipboard()->clear();
}

void scientific::setClipboard(std::string_view text) {
    QGuiApplication::clipboard()->setText(qstring(text));
}

std::string scientific::clipboard() {
    return utf8(oneLine(QGuiApplication::clipboard()->text()));
}

void scientific::textsChanged() {
    if (!Text1_) return;
    if (Text1_->Text() != machine_->Text1) {
        Text1_->setText(machine_->Text1);
        Text1_->end(false);  // what is being typed stays in sight
    }
    Label1_->setText(qstring(machine_->Label1));
    Label2_->setText(qstring(machine_->Label2));
}

}  // namespace torvane
