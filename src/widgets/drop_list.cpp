#include "widgets/drop_list.h"

#include <QListView>

#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

DropList::DropList(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
    setPlaceholderText(" ");  // else the first entry would select itself
    // Else the first show measures every entry.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setModel(&texts_);
    connect(this, &QComboBox::activated, this, &DropList::Click);
}

void DropList::Clear() {
    fill({});
}

void DropList::AddItem(std::string_view text, int itemData) {
    addItem(qstring(text));
    itemData_.push_back(itemData);
}

void DropList::fill(const std::vector<Entry>& entries) {
    QStringList texts;
    itemData_.clear();
    for (const Entry& entry : entries) {
        texts.append(qstring(entry.text));
        itemData_.push_back(entry.itemData);
    }
    texts_.setStringList(texts);
    setCurrentIndex(-1);
}

int DropList::ListCount() const {
    return count();
}

int DropList::ListIndex() const {
    return currentIndex();
}

void DropList::select(int index) {
    if (index < -1 || index >= ListCount()) fail(Failure::InvalidCall);
    setCurrentIndex(index);
    if (index >= 0) emit Click();
}

void DropList::selectItemData(int itemData) {
    for (int index = 0; index < ListCount(); ++index)
        if (ItemData(index) == itemData) select(index);
}

int DropList::ItemData(int index) const {
    if (index < 0 || index >= ListCount()) fail(Failure::Subscript);
    return itemData_[static_cast<std::size_t>(index)];
}

std::string DropList::List(int index) const {
    return utf8(itemText(index));
}

void DropList::showPopup() {
    // Made at the first opening only: a list that nobody opens needs no view.
    if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
    QComboBox::showPopup();
}

}  // namespace torvane
