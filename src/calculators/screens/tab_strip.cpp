#include "calculators/screens/tab_strip.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QToolButton>

#include "widgets/roles.h"

namespace torvane {

namespace {

// In the colours of a selection: a pressed look alone is hard to see on a dark ground.
void mark(QToolButton& tab) {
    QPalette colours;
    if (tab.isChecked()) {
        colours.setColor(QPalette::Button, colours.color(QPalette::Highlight));
        colours.setColor(QPalette::ButtonText, colours.color(QPalette::HighlightedText));
    }
    tab.setPalette(colours);
}

// The arrows only walk: a click on each tab that they pass would open windows and start programs.
class Tab : public QToolButton {
public:
    explicit Tab(TabStrip& strip) : QToolButton(&strip), strip_(strip) {}

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
        const int step = event->key() == Qt::Key_Right  ? 1
                         : event->key() == Qt::Key_Left ? -1
                         : event->key() == Qt::Key_Down ? strip_.tabsInARow()
                         : event->key() == Qt::Key_Up   ? -strip_.tabsInARow()
                                                        : 0;
        if (step == 0) return QToolButton::keyPressEvent(event);
        if (QAbstractButton* next = group()->button(group()->id(this) + step)) next->setFocus();
    }

private:
    const TabStrip& strip_;
};

}  // namespace

TabStrip::TabStrip(QWidget* parent) : QWidget(parent), tabs_(new QButtonGroup(this)) {
    auto* layout = new QGridLayout(this);
    setRole(*this, QAccessible::PageTabList);
    setAccessibleName(QStringLiteral("Calculators"));
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    connect(tabs_, &QButtonGroup::idClicked, this, &TabStrip::Click);
}

void TabStrip::addTab(const QString& caption, const QString& toolTip) {
    const int index = static_cast<int>(tabs_->buttons().size());
    auto* tab = new Tab(*this);
    setRole(*tab, QAccessible::PageTab);
    tab->setObjectName(QStringLiteral("TabStrip1_%1").arg(index + 1));
    tab->setText(caption);
    tab->setAccessibleName(tab->text());
    tab->setToolTip(toolTip);
    tab->setCheckable(true);
    tab->setChecked(index == 0);
    tab->setFocusPolicy(Qt::StrongFocus);
    tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(tab, &QAbstractButton::toggled, tab, [tab] { mark(*tab); });
    mark(*tab);
    tabs_->addButton(tab, index + 1);
    place(*tab);
}

void TabStrip::place(QAbstractButton& tab) {
    auto& grid = *static_cast<QGridLayout*>(layout());
    const int index = tabs_->id(&tab) - 1;
    grid.addWidget(&tab, index / tabsInARow_, index % tabsInARow_);
    grid.setColumnStretch(index % tabsInARow_, 1);
}

void TabStrip::fitInto(int width) {
    while (tabsInARow_ > 1 && layout()->minimumSize().width() > width) {
        static_cast<QGridLayout*>(layout())->setColumnStretch(--tabsInARow_, 0);
        for (QAbstractButton* tab : tabs_->buttons()) place(*tab);
    }
}

int TabStrip::selectedIndex() const {
    return tabs_->checkedId();
}

}  // namespace torvane
