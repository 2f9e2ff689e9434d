#pragma once

#include <QComboBox>
#include <QWheelEvent>
#include <functional>
#include <string>
#include <vector>

namespace torvane {

// A drop-down list whose entries carry a number (item data). Nothing is selected until somebody selects. `Click` fires
// on each act of selecting, by the user (also of the entry that stands already) or by `select`, and not on clearing,
// filling or the wheel, which changes no drop-down list at all. ListIndex is -1 while nothing is selected. The entries
// are changed by Clear and fill only.
class DropList : public QComboBox {
    Q_OBJECT
public:
    explicit DropList(QWidget* parent = nullptr);
    struct Entry {
        std::string text;
        int itemData = 0;
    };
    void Clear();
    void fill(std::vector<Entry> entries);
    // The same for a long list: a number for each entry, and its text whenever it is to be shown.
    void fill(std::vector<int> itemData, std::function<std::string(int index)> text);
    int ListCount() const;
    int ListIndex() const;
    // Selects an entry and fires Click. Failure::InvalidCall when there is no such entry; -1 clears the selection.
    void select(int index);
    // Selects each entry with this number, from the first to the last; none leaves the selection as it is.
    void selectItemData(int itemData);
    // The number of an entry, or of the selected one. Failure::Subscript when there is none.
    int ItemData(int index) const;
    int ItemData() const { return ItemData(ListIndex()); }
    // The text of an entry; "" when there is none.
    std::string List(int index) const;
    // The text of the selected entry, or "".
    std::string Text() const { return List(ListIndex()); }

    void showPopup() override;

signals:
    void Click();

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    class Texts;
    Texts* texts_;
    std::vector<int> itemData_;
};

}  // namespace torvane
