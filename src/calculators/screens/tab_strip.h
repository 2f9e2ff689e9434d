#pragma once

#include <QWidget>

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
    // Index of the marked tab, from 1; the first at the start.
    int selectedIndex() const;

signals:
    void Click();

private:
    QButtonGroup* tabs_;
};

}  // namespace torvane
