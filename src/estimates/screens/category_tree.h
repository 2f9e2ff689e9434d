#pragma once

#include <QTreeWidget>
#include <string>

namespace torvane {

// The tree of categories and their items. Each node bears a key, whose first letter tells what it is. Enter on a node
// is a double click; the arrow keys expand and collapse.
class CategoryTree : public QTreeWidget {
    Q_OBJECT
public:
    explicit CategoryTree(QWidget* parent = nullptr);
    // A node that stands in no tree yet.
    static QTreeWidgetItem* node(const std::string& key, const std::string& text);
    // Key of the selected node; "" when none is selected.
    std::string selectedKey() const;

signals:
    void DblClick();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace torvane
