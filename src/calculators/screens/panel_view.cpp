#include "calculators/screens/panel_view.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <algorithm>

#include "platform/controls.h"
#include "values/failure.h"

namespace torvane {

namespace {

// A cell of the table's grid takes five columns of the layout.
enum Part { labelPart, prefixPart, boxPart, unitPart, gapPart, partsInACell };

constexpr int digitsTyped = 10;
constexpr int digitsOfAResult = 17;  // with its point, and the space around it
constexpr QRgb resultColour = qRgb(255, 255, 192);

bool standsAlone(PanelKind kind) {
    return kind == PanelKind::Button || kind == PanelKind::Help || kind == PanelKind::Option ||
           kind == PanelKind::Check || kind == PanelKind::Heading;
}

QLabel* labelOf(const QString& text, QWidget& control) {
    auto* label = new QLabel(text, control.parentWidget());
    label->setBuddy(&control);
    return label;
}

QString joined(std::initializer_list<std::string_view> words) {
    QStringList parts;
    for (const std::string_view word : words)
        if (const QString part = qstring(word).simplified(); !part.isEmpty()) parts.append(part);
    return parts.join(' ');
}

}  // namespace

template <class Control>
Control& PanelView::control(std::string_view name) const {
    auto* found = findChild<Control*>(qstring(name));
    if (!found) fail(Failure::ObjectNotSet, name);
    return *found;
}

PanelView::PanelView(Form& form, const Panel& panel, QWidget* parent) : QGroupBox(parent), form_(form), panel_(panel) {
    setObjectName(qstring(panel.frame));
    setTitle(qstring(panel.caption));
    new QGridLayout(this);
    for (const PanelControl& control : panel.controls) {
        made_.push_back(add(control));
        place(control, *made_.back());
    }
    pressOnEnter();
    for (QGridLayout* grid : findChildren<QGridLayout*>()) {
        grid->setRowStretch(grid->rowCount(), 1);
        grid->setColumnStretch(grid->columnCount(), 1);
    }
}

// --- Building --------------------------------------------------------------------------------------------------------

QGridLayout& PanelView::gridOf(std::string_view frame) {
    const QWidget& in = frame.empty() ? *this : control<QGroupBox>(frame);
    return *static_cast<QGridLayout*>(in.layout());
}

QWidget* PanelView::add(const PanelControl& control) {
    QWidget* const parent = gridOf(control.frame).parentWidget();
    const QString caption = qstring(control.label);
    QWidget* made = nullptr;
    switch (control.kind) {
        case PanelKind::Heading:
        case PanelKind::Label:
            made = new QLabel(caption, parent);
            break;
        case PanelKind::Input:
        case PanelKind::Result:
            made = addBox(control, parent);
            break;
        case PanelKind::List:
            made = addList(control, parent);
            break;
        case PanelKind::Option: {
            auto* option = new QRadioButton(caption, parent);
            option->setChecked(control.start == "set");
            made = option;
            break;
        }
        case PanelKind::Check:
            made = new QCheckBox(caption, parent);
            break;
        case PanelKind::Button:
            made = addButton(control, parent);
            break;
        case PanelKind::Help:
            made = addHelp(control, parent);
            break;
        case PanelKind::Frame:
            made = new QGroupBox(caption, parent);
            new QGridLayout(made);
            break;
        case PanelKind::Rule: {
            auto* rule = new QFrame(parent);
            rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
            made = rule;
            break;
        }
    }
    made->setObjectName(qstring(control.name));
    return made;
}

TextBox* PanelView::addBox(const PanelControl& control, QWidget* parent) {
    auto* box = new TextBox(parent);
    box->setText(control.start);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance('0') * digitsIn(control));
    box->setAccessibleName(spokenName(control));
    if (control.kind == PanelKind::Result) {
        box->setReadOnly(true);
        QPalette colours = box->palette();
        colours.setColor(QPalette::Base, QColor(resultColour));
        colours.setColor(QPalette::Text, Qt::black);
        box->setPalette(colours);
    }
    return box;
}

// Boxes of a column stand in line: all are as wide as the widest.
int PanelView::digitsIn(const PanelControl& control) const {
    const bool wide = std::ranges::any_of(panel_.controls, [&control](const PanelControl& other) {
        return other.frame == control.frame && other.column == control.column &&
               (other.kind == PanelKind::Result || other.kind == PanelKind::List);
    });
    return wide ? digitsOfAResult : digitsTyped;
}

QWidget* PanelView::addList(const PanelControl& control, QWidget* parent) {
    auto* list = new DropList(parent);
    for (const PanelEntry& entry : control.entries) list->AddItem(entry.text, entry.itemData);
    list->setAccessibleName(spokenName(control));
    return list;
}

QWidget* PanelView::addButton(const PanelControl& control, QWidget* parent) {
    auto* button = new QPushButton(qstring(control.label), parent);
    on(form_, button, &QAbstractButton::clicked, [this, compute = control.compute] {
        const Program::Doing doing(form_.program(), "computing the " + std::string(shownAs_));
        compute(*this);
    });
    return button;
}

QWidget* PanelView::addHelp(const PanelControl& control, QWidget* parent) {
    auto* button = new PictureButton(parent);
    button->setAccessibleName(QStringLiteral("Help"));
    button->setPicture(QStringLiteral("help"));
    on(form_, button, &QAbstractButton::clicked,
       [&program = form_.program(), text = control.label] { program.speakHelp(text); });
    return button;
}

void PanelView::place(const PanelControl& control, QWidget& made) {
    QGridLayout& grid = gridOf(control.frame);
    QWidget* const parent = grid.parentWidget();
    const int first = control.column * partsInACell;
    grid.setColumnMinimumWidth(first + gapPart, fontMetrics().horizontalAdvance('0'));
    if (control.kind == PanelKind::Label || control.kind == PanelKind::Frame) {
        const bool sharesItsCell = std::ranges::any_of(panel_.controls, [&control](const PanelControl& other) {
            return &other != &control && other.frame == control.frame && other.row == control.row &&
                   other.column == control.column;
        });
        grid.addWidget(&made, control.row, first, 1, sharesItsCell ? 1 : gapPart);
        return;
    }
    if (control.kind == PanelKind::Rule) {
        grid.addWidget(&made, control.row, 0, 1, -1);
        return;
    }
    if (standsAlone(control.kind)) {
        const bool isAButton = control.kind == PanelKind::Button || control.kind == PanelKind::Help;
        grid.addWidget(&made, control.row, first + boxPart, 1, isAButton ? 1 : 2);
        return;
    }
    const auto words = [&](std::string_view text, Part part) {
        if (text.empty()) return;
        grid.addWidget(part == labelPart ? labelOf(qstring(text), made) : new QLabel(qstring(text), parent),
                       control.row, first + part);
    };
    words(control.label, labelPart);
    words(control.prefix, prefixPart);
    grid.addWidget(&made, control.row, first + boxPart);
    words(control.unit, unitPart);
}

// What a screen reader says of a box: the words of its row that stand before it, the heading over it, its unit.
QString PanelView::spokenName(const PanelControl& control) const {
    std::string_view row;
    std::string_view heading;
    for (const PanelControl& other : panel_.controls) {
        if (other.frame != control.frame) continue;
        if (other.row == control.row && other.column <= control.column && row.empty()) row = other.label;
        if (other.kind == PanelKind::Heading && other.column == control.column && other.row < control.row)
            heading = other.label;
    }
    if (control.label.empty()) return joined({row, heading, control.unit});
    return joined({control.label, heading, control.unit});
}

void PanelView::pressOnEnter() {
    QPushButton* next = nullptr;
    for (std::size_t index = made_.size(); index-- > 0;) {
        if (panel_.controls[index].kind == PanelKind::Button) next = static_cast<QPushButton*>(made_[index]);
        // A result behind the last button belongs to that one.
        if (!next) {
            for (std::size_t before = index; before-- > 0 && !next;)
                if (panel_.controls[before].kind == PanelKind::Button) next = static_cast<QPushButton*>(made_[before]);
        }
        auto* box = qobject_cast<TextBox*>(made_[index]);
        if (box && next) on(form_, box, &QLineEdit::returnPressed, [next] { next->click(); });
    }
}

// --- What formulas ask -----------------------------------------------------------------------------------------------

void PanelView::selectFirstEntries() {
    for (std::size_t index = 0; index < made_.size(); ++index)
        if (panel_.controls[index].kind == PanelKind::List && panel_.controls[index].start == "first")
            static_cast<DropList*>(made_[index])->select(0);
}

std::string PanelView::text(std::string_view box) const {
    return control<TextBox>(box).Text();
}

void PanelView::setText(std::string_view box, std::string_view text) {
    control<TextBox>(box).setText(text);
}

int PanelView::listIndex(std::string_view list) const {
    return control<DropList>(list).ListIndex();
}

int PanelView::itemData(std::string_view list) const {
    return control<DropList>(list).ItemData();
}

bool PanelView::isSet(std::string_view option) const {
    return control<QAbstractButton>(option).isChecked();
}

}  // namespace torvane
