#include "estimates/screens/category_tree.h"

#include <QKeyEvent>

#include "widgets/texts.h"

namespace torvane {

namespace {

constexpr int keyRole = Qt::UserRole;

}  // namespace

CategoryTree::CategoryTree(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(true);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &CategoryTree::DblClick);
}

QTreeWidgetItem* CategoryTree::node(const std::string& key, const std::string& text) {
    auto* item = new QTreeWidgetItem(QStringList{qstring(text)});
    item->setData(0, keyRole, qstring(key));
    return item;
}

std::string CategoryTree::selectedKey() const {
    const QTreeWidgetItem* item = currentItem();
    return item ? utf8(item->data(0, keyRole).toString()) : std::string{};
}

void CategoryTree::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QTreeWidget::keyPressEvent(event);
        return;
    }
    if (QTreeWidgetItem* item = currentItem()) {
        if (item->childCount() > 0) item->setExpanded(!item->isExpanded());
        emit DblClick();
    }
}

}  // namespace torvane
