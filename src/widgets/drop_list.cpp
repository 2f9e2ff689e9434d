#include "widgets/drop_list.h"

#include <QAbstractListModel>
#include <QListView>
#include <algorithm>
#include <utility>

#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

class DropList::Texts : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void set(int count, std::function<std::string(int)> text) {
        beginResetModel();
        count_ = count;
        text_ = std::move(text);
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override {
        const bool shown = index.isValid() && (role == Qt::DisplayRole || role == Qt::EditRole);
        return shown ? qstring(text_(index.row())) : QVariant();
    }

private:
    int count_ = 0;
    std::function<std::string(int)> text_;
};

DropList::DropList(QWidget* parent) : QComboBox(parent), texts_(new Texts(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
    setPlaceholderText(" ");  // else the first entry would select itself
    // Else the first show measures every entry.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setModel(texts_);
    connect(this, &QComboBox::activated, this, &DropList::Click);
}

void DropList::Clear() {
    fill({}, {});
}

void DropList::fill(std::vector<Entry> entries) {
    std::vector<int> itemData;
    itemData.reserve(entries.size());
    for (const Entry& entry : entries) itemData.push_back(entry.itemData);
    fill(std::move(itemData),
         [entries = std::move(entries)](int index) { return entries[static_cast<std::size_t>(index)].text; });
}

void DropList::fill(std::vector<int> itemData, std::function<std::string(int)> text) {
    itemData_ = std::move(itemData);
    texts_->set(static_cast<int>(itemData_.size()), std::move(text));
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
    const auto next = [&](std::ptrdiff_t from) {
        const auto rest = itemData_.begin() + std::min(from, std::ssize(itemData_));  // Click may have shortened it
        return std::find(rest, itemData_.end(), itemData) - itemData_.begin();
    };
    for (std::ptrdiff_t index = next(0); index < std::ssize(itemData_); index = next(index + 1))
        select(static_cast<int>(index));
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
