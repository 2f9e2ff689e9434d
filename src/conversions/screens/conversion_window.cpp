#include "conversions/screens/conversion_window.h"

#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>

#include "conversions/units.h"
#include "widgets/text_box.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

const Unit& chosen(const Category& category, const QListWidget& list) {
    return category.units[static_cast<std::size_t>(list.currentRow())];
}

// Room for the longest name and the longest list of all categories, so that the window keeps its size.
QSize roomForUnits(const QListWidget& list) {
    int width = 0;
    std::size_t rows = 0;
    for (const Category& category : categories()) {
        rows = std::max(rows, category.units.size());
        for (const Unit& unit : category.units)
            width = std::max(width, list.fontMetrics().horizontalAdvance(qstring(unit.name)));
    }
    width += 2 * list.frameWidth() + list.verticalScrollBar()->sizeHint().width() +
             2 * list.fontMetrics().averageCharWidth();
    return {width, static_cast<int>(rows + 1) * list.fontMetrics().lineSpacing()};
}

void fill(QListWidget& list, const Category& category, int row) {
    const QSignalBlocker quiet(list);
    list.clear();
    for (const Unit& unit : category.units) list.addItem(qstring(unit.name));
    list.setCurrentRow(row);
}

QComboBox* addList(QGridLayout& grid, int column, const QString& name, const QString& label) {
    auto* list = new QComboBox;
    list->setObjectName(name);
    auto* caption = new QLabel(label);
    caption->setBuddy(list);
    grid.addWidget(caption, 0, column);
    grid.addWidget(list, 1, column);
    return list;
}

QPushButton* addButton(QHBoxLayout& foot, const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    foot.addWidget(button);
    return button;
}

}  // namespace

ConversionWindow::ConversionWindow() {
    setWindowTitle(QStringLiteral("Conversions"));
    auto* grid = new QGridLayout(this);
    // The order is the order of Tab.
    QComboBox* categoryList = addList(*grid, 0, QStringLiteral("cmbCategory"), QStringLiteral("&Category"));
    for (const Category& category : categories()) categoryList->addItem(qstring(category.name));
    categoryList->setMaxVisibleItems(categoryList->count());
    fractions_ = addList(*grid, 2, QStringLiteral("cmbFractions"), QStringLiteral("Feet and inches to &nearest"));
    for (const int denominator : {2, 4, 8, 16, 32, 64})
        fractions_->addItem(QStringLiteral("1/%1 inch").arg(denominator), denominator);
    fractions_->setCurrentIndex(fractions_->findData(ResultForm().denominator));
    addSide(*grid, 0, QStringLiteral("Left"), QStringLiteral("&From"));
    addSide(*grid, 1, QStringLiteral("Right"), QStringLiteral("&To"));
    grid->addWidget(new QLabel(QStringLiteral("=")), 3, 1);

    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    QPushButton* copyButton = addButton(*foot, QStringLiteral("cmdCopy"), QStringLiteral("C&opy Result"));
    QPushButton* closeButton = addButton(*foot, QStringLiteral("cmdClose"), QStringLiteral("C&lose"));
    grid->addLayout(foot, 5, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(4, 1);

    connect(categoryList, &QComboBox::currentIndexChanged, this, &ConversionWindow::startCategory);
    connect(fractions_, &QComboBox::currentIndexChanged, this, &ConversionWindow::follow);
    connect(copyButton, &QAbstractButton::clicked, this, &ConversionWindow::copy);
    connect(closeButton, &QAbstractButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, &ConversionWindow::copy);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);

    startCategory(0);
    sides_[0].box->setFocus();
    const int wanted =
        sizeHint().height() + roomForUnits(*sides_[0].units).height() - sides_[0].units->sizeHint().height();
    resize(sizeHint().width(), std::min(wanted, screen()->availableGeometry().height()));
}

void ConversionWindow::addSide(QGridLayout& grid, int index, const QString& name, const QString& label) {
    const auto number = static_cast<std::size_t>(index);
    Side& side = sides_[number];
    const int column = 2 * index;
    side.box = new TextBox;
    side.box->setObjectName("txt" + name);
    side.box->installEventFilter(this);
    auto* caption = new QLabel(label);
    caption->setBuddy(side.box);
    side.units = new QListWidget;
    side.units->setObjectName("lst" + name);
    side.units->setAccessibleName(name + " unit");
    const QSize room = roomForUnits(*side.units);
    side.units->setMinimumSize(room.width(), room.height() / 2);
    side.units->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    side.word = new QLabel;
    side.word->setObjectName("lbl" + name);
    QFont bold = side.word->font();
    bold.setBold(true);
    side.word->setFont(bold);
    auto* head = new QHBoxLayout;
    head->addWidget(caption, 1);
    head->addWidget(side.word);
    grid.addLayout(head, 2, column);
    grid.addWidget(side.box, 3, column);
    grid.addWidget(side.units, 4, column);

    connect(side.box, &QLineEdit::textEdited, this, [this, number] {
        typed_ = number;
        follow();
    });
    connect(side.units, &QListWidget::currentRowChanged, this, &ConversionWindow::follow);
}

void ConversionWindow::startCategory(int index) {
    category_ = &categories()[static_cast<std::size_t>(index)];
    fill(*sides_[0].units, *category_, category_->from);
    fill(*sides_[1].units, *category_, category_->to);
    typed_ = 0;
    const std::string_view example = chosen(*category_, *sides_[0].units).example;
    sides_[0].box->setText(qstring(example.empty() ? "1" : example));
    sides_[0].box->selectAll();
    follow();
}

void ConversionWindow::follow() {
    const Side& source = sides_[typed_];
    Side& result = sides_[1 - typed_];
    const Unit& from = chosen(*category_, *source.units);
    const Unit& to = chosen(*category_, *result.units);
    fractions_->setEnabled(from.notation == Notation::FeetInches || to.notation == Notation::FeetInches);
    source.box->setPlaceholderText(qstring(from.example));
    result.box->setPlaceholderText(qstring(to.example));
    if (!result.box->text().isEmpty()) result.lastText = utf8(result.box->text());
    const std::string text = utf8(source.box->text());
    result.box->setText(qstring(converted(text, from, to, {fractions_->currentData().toInt(), result.lastText})));
    const bool empty = source.box->text().trimmed().isEmpty();
    const bool read = understood(text, from);
    tell(source, empty || read ? QString() : QStringLiteral("Not understood"));
    tell(result, read && result.box->text().isEmpty() ? QStringLiteral("No such amount") : QString());
    result.box->setCursorPosition(0);
}

void ConversionWindow::tell(const Side& side, const QString& word) {
    side.word->setText(word);
    side.box->setAccessibleDescription(word);
}

void ConversionWindow::copy() const {
    const QString result = sides_[1 - typed_].box->text();
    if (!result.isEmpty()) QGuiApplication::clipboard()->setText(result);
}

// A box takes Ctrl+C for itself. Where nothing is selected in it, that copies the result as elsewhere in the window.
bool ConversionWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* box = qobject_cast<QLineEdit*>(watched);
        if (box && !box->hasSelectedText() && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace torvane
