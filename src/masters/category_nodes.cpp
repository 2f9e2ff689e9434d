#include "masters/category_nodes.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_map>

#include "values/letters.h"

namespace torvane {

namespace {

constexpr int levels = 3;

class Builder {
public:
    Builder(const RowArray& categories, const ListRows& items) : categories_(categories) {
        for (int row = 0; row < categories.rows(); ++row) childrenOf_[int16OrZero(categories(3, row))].push_back(row);
        if (!items) return;
        for (int row = 0; row < items->rows(); ++row) {
            const std::string category = textOrEmpty((*items)(2, row));
            for (std::size_t digits = 1; digits <= category.size(); ++digits)
                itemsUnder_[category.substr(0, digits)].push_back(
                    {"I" + textOf((*items)(0, row)), textOrEmpty((*items)(1, row)), -1});
        }
    }

    std::vector<CategoryNode> build() {
        nodes_.push_back({"R", "Categories", -1});
        // The children of the root, and only they, are sorted by name.
        if (const auto tops = childrenOf_.find(0); tops != childrenOf_.end())
            std::ranges::stable_sort(tops->second, [this](int a, int b) {
                return compareWithoutCase(textOrEmpty(categories_(1, a)), textOrEmpty(categories_(1, b))) < 0;
            });
        addChildren(0, 0, 0);
        return std::move(nodes_);
    }

private:
    void addChildren(int parentKey, int parentNode, int level) {
        constexpr std::string_view marks[levels] = {"C", "C1_", "C2_"};
        if (level == levels) return;
        const auto children = childrenOf_.find(parentKey);
        if (children == childrenOf_.end()) return;
        for (const int row : children->second) {
            const std::string key = textOf(categories_(0, row));
            const int node = static_cast<int>(nodes_.size());
            nodes_.push_back({std::string{marks[level]} + key, textOrEmpty(categories_(1, row)), parentNode});
            if (const auto items = itemsUnder_.find(key); items != itemsUnder_.end()) {
                for (CategoryNode item : items->second) {
                    item.parent = node;
                    nodes_.push_back(std::move(item));
                }
            }
            addChildren(toInt16(categories_(0, row)), node, level + 1);
        }
    }

    const RowArray& categories_;
    std::map<int, std::vector<int>> childrenOf_;
    std::unordered_map<std::string, std::vector<CategoryNode>> itemsUnder_;
    std::vector<CategoryNode> nodes_;
};

}  // namespace

std::vector<CategoryNode> categoryNodes(const ListRows& categories, const ListRows& items) {
    if (!categories) return {{"R", "Categories", -1}};
    return Builder(*categories, items).build();
}

}  // namespace torvane
