#pragma once

#include <QWidget>

class QAbstractButton;
class QButtonGroup;

namespace torvane {

// A strip of tabs that shows all of its captions at once, in rows: one that scrolls would hide most of them. Only a
// click moves the mark, and a click on the marked tab counts, too. The arrows walk along the tabs, Space and
// Enter click.
class TabStrip : public QWidget {
    Q_OBJECT
public:
    explicit TabStrip(QWidget* parent = nullptr);
    void addTab(const QString& caption, const QString& toolTip);
    // Takes more rows where all of them are wider than that.
    void fitInto(int width);
    int tabsInARow() const { return tabsInARow_; }
    // Index of the marked tab, from 1; the first at the start.
    int selectedIndex() const;

signals:
    void Click();

private:
    void place(QAbstractButton& tab);

    QButtonGroup* tabs_;
    int tabsInARow_ = 4;
};

}  // namespace torvane
