#include "masters/category_nodes.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string_view>
#include <unordered_map>

#include "values/letters.h"

namespace torvane {

namespace {

// What each level's keys begin with.
constexpr std::string_view marks[] = {"C", "C1_", "C2_"};

}  // namespace

std::vector<CategoryNode> categoryNodes(const ListRows& categories, const ListRows& items) {
    std::vector<CategoryNode> nodes{{"R", "Categories", -1}};
    if (!categories) return nodes;

    std::map<int, std::vector<int>> childrenOf;  // rows of categories by the key of their parent
    for (int row = 0; row < categories->rows(); ++row) childrenOf[int16OrZero((*categories)(3, row))].push_back(row);
    // The children of the root, and only they, are sorted by name.
    std::ranges::stable_sort(childrenOf[0], [&](int a, int b) {
        return compareWithoutCase(textOrEmpty((*categories)(1, a)), textOrEmpty((*categories)(1, b))) < 0;
    });
    std::unordered_map<std::string, std::vector<CategoryNode>> itemsUnder;  // by each beginning of their category's key
    for (int row = 0; items && row < items->rows(); ++row) {
        const std::string category = textOrEmpty((*items)(2, row));
        for (std::size_t digits = 1; digits <= category.size(); ++digits)
            itemsUnder[category.substr(0, digits)].push_back(
                {"I" + textOf((*items)(0, row)), textOrEmpty((*items)(1, row)), -1});
    }

    const std::function<void(int, int, std::size_t)> addChildren = [&](int parentKey, int parentNode,
                                                                       std::size_t level) {
        if (level == std::size(marks)) return;
        for (const int row : childrenOf[parentKey]) {
            const std::string key = textOf((*categories)(0, row));
            const int node = static_cast<int>(nodes.size());
            nodes.push_back({std::string(marks[level]) + key, textOrEmpty((*categories)(1, row)), parentNode});
            for (CategoryNode item : itemsUnder[key]) {
                item.parent = node;
                nodes.push_back(std::move(item));
            }
            addChildren(toInt16((*categories)(0, row)), node, level + 1);
        }
    };
    addChildren(0, 0, 0);
    return nodes;
}

}  // namespace torvane
