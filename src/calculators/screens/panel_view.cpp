#include "calculators/screens/panel_view.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <algorithm>

#include "widgets/drop_list.h"
#include "widgets/picture_button.h"
#include "widgets/text_box.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

// A cell of the panel's grid takes five columns of the layout.
enum Part { labelPart, prefixPart, boxPart, unitPart, gapPart, partsInACell };

constexpr int firstRow = 1;  // under the caption of the tab
constexpr int digitsTyped = 10;
constexpr int digitsOfAResult = 17;  // with its point, and the space around it
constexpr QRgb resultColour = qRgb(255, 255, 192);

}  // namespace

PanelView::PanelView(Form& form, std::unique_ptr<Panel> panel, QWidget* parent)
    : QGroupBox(parent), form_(form), panel_(std::move(panel)) {
    panel_->desk = this;
    setObjectName(qstring(panel_->frame));
    setTitle(qstring(panel_->caption));
    auto* grid = new QGridLayout(this);
    caption_ = new QLabel(this);
    caption_->setObjectName(QStringLiteral("lblTab"));
    caption_->setVisible(panel_->caption.empty());
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    grid->addWidget(caption_, 0, 0, 1, -1);
    for (const Control* control : panel_->controls()) {
        QWidget* made = make(*control, gridOf(control->frame).parentWidget());
        if (made->focusPolicy() & Qt::TabFocus && made->accessibleName().isEmpty())
            made->setAccessibleName(spokenName(*control));
        made->setObjectName(qstring(control->name));
        widgets_.emplace(control, made);
        place(*control);
    }
    for (QGridLayout* one : findChildren<QGridLayout*>()) {
        one->setRowStretch(one->rowCount(), 1);
        one->setColumnStretch(one->columnCount(), 1);
    }
}

// --- Making widgets --------------------------------------------------------------------------------------------------

QGridLayout& PanelView::gridOf(const Control* frame) const {
    return *static_cast<QGridLayout*>(frame ? widgets_.at(frame)->layout() : layout());
}

QWidget* PanelView::make(const Control& control, QWidget* parent) {
    const QString caption = qstring(control.label);
    switch (control.kind) {
        case ControlKind::Heading:
        case ControlKind::Label:
            return new QLabel(caption, parent);
        case ControlKind::Input:
        case ControlKind::Result:
            return makeBox(control, parent);
        case ControlKind::List:
            return makeList(control, parent);
        case ControlKind::Option: {
            auto* option = new QRadioButton(caption, parent);
            option->setChecked(control.setAtStart);
            return option;
        }
        case ControlKind::Check:
            return new QCheckBox(caption, parent);
        case ControlKind::Button:
            return makeButton(control, parent);
        case ControlKind::Help:
            return makeHelp(control, parent);
        case ControlKind::Frame: {
            auto* frame = new QGroupBox(caption, parent);
            new QGridLayout(frame);
            return frame;
        }
        case ControlKind::Rule: {
            auto* rule = new QFrame(parent);
            rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
            return rule;
        }
    }
    return nullptr;
}

QWidget* PanelView::makeBox(const Control& box, QWidget* parent) const {
    auto* made = new TextBox(parent);
    made->setText(box.start);
    made->setAlignment(Qt::AlignRight);
    made->setFixedWidth(made->fontMetrics().horizontalAdvance('0') * digitsIn(box));
    if (box.kind == ControlKind::Result) {
        made->setReadOnly(true);
        QPalette colours = made->palette();
        colours.setColor(QPalette::Base, QColor(resultColour));
        colours.setColor(QPalette::Text, Qt::black);
        made->setPalette(colours);
    }
    return made;
}

// Boxes of a column stand in line: all are as wide as the widest.
int PanelView::digitsIn(const Control& box) const {
    const bool wide = std::ranges::any_of(panel_->controls(), [&box](const Control* other) {
        return other->frame == box.frame && other->column == box.column &&
               (other->kind == ControlKind::Result || other->kind == ControlKind::List);
    });
    return wide ? digitsOfAResult : digitsTyped;
}

QWidget* PanelView::makeList(const Control& list, QWidget* parent) const {
    auto* made = new DropList(parent);
    std::vector<DropList::Entry> entries;
    for (const ListEntry& entry : list.entries) entries.push_back({std::string(entry.text), entry.itemData});
    made->fill(std::move(entries));
    // Its name is the entry that is selected.
    if (list.label.empty()) made->setAccessibleDescription(spokenName(list));
    return made;
}

QWidget* PanelView::makeButton(const Control& button, QWidget* parent) {
    auto* made = new QPushButton(qstring(button.label), parent);
    on(form_, made, &QAbstractButton::clicked, [this, &button] {
        const Program::Doing doing(form_.program(), "computing the " + std::string(tab_));
        button.compute();
    });
    return made;
}

QWidget* PanelView::makeHelp(const Control& control, QWidget* parent) {
    auto* made = new PictureButton(parent);
    made->setAccessibleName(QStringLiteral("Help"));
    made->setPicture(QStringLiteral("help"));
    on(form_, made, &QAbstractButton::clicked, [this, &control] { form_.program().speakHelp(control.label); });
    return made;
}

// What a screen reader says of a control: the frame in which it stands, the words of its row that stand before it, the
// heading over its rows, its unit.
QString PanelView::spokenName(const Control& control) const {
    const std::string frame = control.frame ? control.frame->label + ' ' : std::string();
    if (!control.says.empty()) return qstring(frame + control.says).simplified();
    std::string_view row = control.label;
    for (const Control* other : panel_->controls())
        if (other->frame == control.frame && other->row == control.row && other->column <= control.column &&
            row.empty())
            row = other->label;
    const std::string name = frame + std::string(row) + ' ' + std::string(headingOver(control)) + ' ' + control.unit;
    return qstring(name).simplified();
}

// A heading names the boxes under it, down to the first row that has none.
std::string_view PanelView::headingOver(const Control& control) const {
    const auto& all = panel_->controls();
    for (int row = control.row; row >= 0; --row) {
        const auto above = std::ranges::find_if(all, [&](const Control* one) {
            return one->frame == control.frame && one->column == control.column && one->row == row;
        });
        if (above == all.end() || (*above)->kind == ControlKind::Button) break;
        if ((*above)->kind == ControlKind::Heading) return (*above)->label;
    }
    return {};
}

// --- Placing them ----------------------------------------------------------------------------------------------------

void PanelView::place(const Control& control) {
    QGridLayout& grid = gridOf(control.frame);
    QWidget* const made = widgets_.at(&control);
    const int first = control.column * partsInACell;
    grid.setColumnMinimumWidth(first + gapPart, fontMetrics().horizontalAdvance('0'));
    const auto put = [&](QWidget* widget, Part part, int columns = 1) {
        grid.addWidget(widget, control.row + firstRow, first + part, 1, columns);
    };
    const auto putWords = [&](const std::string& text, Part part) {
        if (text.empty()) return;
        auto* words = new QLabel(qstring(text), grid.parentWidget());
        if (part == labelPart) words->setBuddy(made);
        put(words, part);
    };
    switch (control.kind) {
        case ControlKind::Label:
        case ControlKind::Frame:
            return put(made, labelPart, sharesItsCell(control) ? 1 : gapPart);
        case ControlKind::Rule:
            return put(made, labelPart, -1);
        case ControlKind::Heading:
        case ControlKind::Option:
        case ControlKind::Check:
            return put(made, boxPart, 2);
        case ControlKind::Button:
        case ControlKind::Help:
            return put(made, boxPart);
        case ControlKind::List:
        case ControlKind::Input:
        case ControlKind::Result:
            putWords(control.label, labelPart);
            putWords(control.prefix, prefixPart);
            put(made, boxPart);
            putWords(control.unit, unitPart);
    }
}

bool PanelView::sharesItsCell(const Control& control) const {
    return std::ranges::any_of(panel_->controls(), [&control](const Control* other) {
        return other != &control && other->frame == control.frame && other->row == control.row &&
               other->column == control.column;
    });
}

// Enter in a box or a list presses the next button; behind the last one it presses that.
void PanelView::keyPressEvent(QKeyEvent* event) {
    const auto& controls = panel_->controls();
    const auto hasFocus = [this](const Control* control) { return widgets_.at(control)->hasFocus(); };
    const auto isButton = [](const Control* control) { return control->kind == ControlKind::Button; };
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto at = std::ranges::find_if(controls, hasFocus);
    if (!enter || at == controls.end() || qobject_cast<QPushButton*>(widgets_.at(*at)))
        return QGroupBox::keyPressEvent(event);
    const auto next = std::find_if(at, controls.end(), isButton);
    const auto last = std::find_if(controls.rbegin(), controls.rend(), isButton);
    event->accept();
    static_cast<QPushButton*>(widgets_.at(next == controls.end() ? *last : *next))->click();
}

void PanelView::open(std::string_view tab) {
    tab_ = tab;
    caption_->setText(qstring(tab));
    if (panel_->caption.empty()) setAccessibleName(qstring(tab));
    for (const Control* control : panel_->controls())
        if (control->kind == ControlKind::List && control->opensOnFirst)
            static_cast<DropList*>(widgets_.at(control))->select(0);
    show();
    const auto takesKeys = [this](const Control* control) {
        return widgets_.at(control)->focusPolicy() & Qt::TabFocus;
    };
    const auto first = std::ranges::find_if(panel_->controls(), takesKeys);
    if (first == panel_->controls().end()) return;
    widgets_.at(*first)->setFocus(Qt::TabFocusReason);
    // What stands there is typed over, also when the window is yet to come.
    if (auto* box = qobject_cast<TextBox*>(widgets_.at(*first))) box->selectAll();
}

// --- What formulas ask -----------------------------------------------------------------------------------------------

std::string PanelView::text(const Box& box) const {
    return static_cast<TextBox*>(widgets_.at(&box))->Text();
}

void PanelView::setText(const Box& box, std::string_view text) {
    static_cast<TextBox*>(widgets_.at(&box))->setText(text);
}

int PanelView::selected(const List& list) const {
    return static_cast<DropList*>(widgets_.at(&list))->ListIndex();
}

bool PanelView::isSet(const Option& option) const {
    return static_cast<QAbstractButton*>(widgets_.at(&option))->isChecked();
}

}  // namespace torvane
