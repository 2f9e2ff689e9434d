#pragma once

#include <QTreeView>
#include <string>

#include "masters/category_nodes.h"

namespace torvane {

// The tree of categories and their items. Each node bears a key, whose first letter tells what it is. Enter on a node
// is a double click; the arrow keys expand and collapse.
class CategoryTree : public QTreeView {
    Q_OBJECT
public:
    explicit CategoryTree(QWidget* parent = nullptr);
    // Selects the root; the last node of all is in sight as soon as the tree has its size.
    void show(CategoryNodes nodes);
    // Key of the selected node; "" when none is selected.
    std::string selectedKey() const;

signals:
    void DblClick();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Nodes;              // which the view reads where they lie
    Nodes* nodes_ = nullptr;  // none before show
};

}  // namespace torvane
