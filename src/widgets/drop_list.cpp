#include "widgets/drop_list.h"

#include <QAbstractListModel>
#include <QListView>

#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

class DropList::Entries : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(entries_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const Entry* entry = at(index.row());
        if (!entry || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
        return qstring(entry->text);
    }
    const Entry* at(int row) const {
        return row >= 0 && row < rowCount() ? &entries_[static_cast<std::size_t>(row)] : nullptr;
    }
    void replace(std::vector<Entry> entries) {
        beginResetModel();
        entries_ = std::move(entries);
        endResetModel();
    }
    void add(Entry entry) {
        beginInsertRows({}, rowCount(), rowCount());
        entries_.push_back(std::move(entry));
        endInsertRows();
    }

private:
    std::vector<Entry> entries_;
};

DropList::DropList(QWidget* parent) : QComboBox(parent), entries_(new Entries(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
    setPlaceholderText(" ");  // else the first entry would select itself
    // Else the first show measures every entry.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setModel(entries_);
    connect(this, &QComboBox::activated, this, &DropList::Click);
}

void DropList::Clear() {
    fill({});
}

void DropList::AddItem(std::string_view text, int itemData) {
    entries_->add({std::string(text), itemData});
}

void DropList::fill(std::vector<Entry> entries) {
    entries_->replace(std::move(entries));
    setCurrentIndex(-1);
}

int DropList::ListCount() const {
    return entries_->rowCount();
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
    const Entry* entry = entries_->at(index);
    if (!entry) fail(Failure::Subscript);
    return entry->itemData;
}

std::string DropList::List(int index) const {
    const Entry* entry = entries_->at(index);
    return entry ? entry->text : std::string();
}

void DropList::showPopup() {
    // Made at the first opening only: a list that nobody opens needs no view.
    if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
    QComboBox::showPopup();
}

}  // namespace torvane
