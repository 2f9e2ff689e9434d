#include "masters/category_nodes.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "values/letters.h"

namespace torvane {

namespace {

// What each level's keys begin with.
constexpr std::string_view marks[] = {"C", "C1_", "C2_"};

}  // namespace

CategoryNodes::CategoryNodes() {
    nodes_.push_back({"R", "Categories"});
    insides_.emplace_back();
}

CategoryNodes::CategoryNodes(ListRows categories, ListRows items) : CategoryNodes() {
    categories_ = std::move(categories);
    items_ = std::move(items);
    if (!categories_) return;
    for (int row = 0; row < categories_->rows(); ++row) {
        toInt16((*categories_)(0, row));  // only its failure matters
        categoriesOf_[int16OrZero((*categories_)(3, row))].push_back(row);
    }
    // The children of the root, and only they, are sorted by name.
    std::ranges::stable_sort(categoriesOf_[0], [&](int a, int b) {
        return compareWithoutCase(textOrEmpty((*categories_)(1, a)), textOrEmpty((*categories_)(1, b))) < 0;
    });
    for (int row = 0; items_ && row < items_->rows(); ++row) itemsOf_[textOrEmpty((*items_)(2, row))].push_back(row);
}

void CategoryNodes::add(int parent, Node node, Inside inside) {
    std::vector<int>& siblings = insides_[static_cast<std::size_t>(parent)].children;
    node.parent = parent;
    node.place = static_cast<int>(siblings.size());
    siblings.push_back(static_cast<int>(nodes_.size()));
    nodes_.push_back(std::move(node));
    insides_.push_back(std::move(inside));
}

const std::vector<int>& CategoryNodes::children(int number) {
    Inside& inside = insides_[static_cast<std::size_t>(number)];
    if (std::exchange(inside.known, true)) return inside.children;
    for (const int row : itemsUnder(inside))
        add(number, {"I" + textOf((*items_)(0, row)), textOrEmpty((*items_)(1, row))}, {.known = true});
    if (inside.level == std::size(marks)) return inside.children;
    for (const int row : categoriesOf_[inside.key])
        add(number,
            {std::string(marks[inside.level]) + textOf((*categories_)(0, row)), textOrEmpty((*categories_)(1, row))},
            {.key = toInt16((*categories_)(0, row)), .level = inside.level + 1});
    return inside.children;
}

bool CategoryNodes::hasChildren(int number) const {
    const Inside& inside = insides_[static_cast<std::size_t>(number)];
    if (inside.known) return !inside.children.empty();
    return !itemsUnder(inside).empty() || (inside.level < std::size(marks) && categoriesOf_.contains(inside.key));
}

std::vector<int> CategoryNodes::itemsUnder(const Inside& category) const {
    std::vector<int> rows;
    if (category.level == 0) return rows;
    const std::string key = std::to_string(category.key);
    for (auto found = itemsOf_.lower_bound(key); found != itemsOf_.end() && found->first.starts_with(key); ++found)
        rows.insert(rows.end(), found->second.begin(), found->second.end());
    std::ranges::sort(rows);
    return rows;
}

}  // namespace torvane
