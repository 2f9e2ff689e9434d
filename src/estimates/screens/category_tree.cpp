#include "estimates/screens/category_tree.h"

#include <QAbstractItemModel>
#include <QKeyEvent>
#include <utility>

#include "widgets/texts.h"

namespace torvane {

class CategoryTree::Nodes : public QAbstractItemModel {
public:
    Nodes(CategoryNodes nodes, QObject* parent) : QAbstractItemModel(parent), nodes_(std::move(nodes)) {}
    const CategoryNodes::Node& node(const QModelIndex& index) const { return nodes_.node(number(index)); }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override {
        if (!hasIndex(row, column, parent)) return {};
        return indexOf(parent.isValid() ? nodes_.children(number(parent))[static_cast<std::size_t>(row)] : 0);
    }
    QModelIndex parent(const QModelIndex& child) const override {
        return child.isValid() ? indexOf(node(child).parent) : QModelIndex();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? static_cast<int>(nodes_.children(number(parent)).size()) : 1;
    }
    bool hasChildren(const QModelIndex& parent) const override {
        return !parent.isValid() || nodes_.hasChildren(number(parent));
    }
    int columnCount(const QModelIndex& = {}) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? qstring(node(index).text) : QVariant();
    }

private:
    static int number(const QModelIndex& index) { return static_cast<int>(index.internalId()); }
    QModelIndex indexOf(int number) const {
        return number < 0 ? QModelIndex() : createIndex(nodes_.node(number).place, 0, static_cast<quintptr>(number));
    }

    mutable CategoryNodes nodes_;  // asking for children makes them
};

CategoryTree::CategoryTree(QWidget* parent) : QTreeView(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeView::doubleClicked, this, &CategoryTree::DblClick);
}

void CategoryTree::show(CategoryNodes nodes) {
    nodes_ = new Nodes(std::move(nodes), this);
    setModel(nodes_);
    QModelIndex last = nodes_->index(0, 0);
    setCurrentIndex(last);
    while (const int children = nodes_->rowCount(last)) last = nodes_->index(children - 1, 0, last);
    // Before, nobody knows what is in sight.
    QMetaObject::invokeMethod(
        this, [this, shown = QPersistentModelIndex(last)] { scrollTo(shown); }, Qt::QueuedConnection);
}

std::string CategoryTree::selectedKey() const {
    return currentIndex().isValid() ? nodes_->node(currentIndex()).key : std::string{};
}

void CategoryTree::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QTreeView::keyPressEvent(event);
        return;
    }
    if (const QModelIndex current = currentIndex(); current.isValid()) {
        if (nodes_->hasChildren(current)) setExpanded(current, !isExpanded(current));
        emit DblClick();
    }
}

}  // namespace torvane
