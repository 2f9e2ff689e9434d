#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "datastore/rows.h"

namespace torvane {

// The item sheet's tree: top categories, their items, their children and so on, three levels deep; deeper categories
// and their items are left out. The items of a category are those whose category key begins with the digits of its own
// key: category 1 lists the items of category 12, too. That is how searches in this system match, and here it stays so.
//
// A node's children are made when they are first asked for: a large catalog has a hundred thousand nodes, and a window
// shows thirty.
class CategoryNodes {
public:
    struct Node {
        std::string key;  // "R" root, "C..", "C1_..", "C2_.." categories of three levels, "I.." items
        std::string text;
        int parent = -1;  // its number; -1 for the root
        int place = 0;    // among its parent's children
    };

    // Only the root.
    CategoryNodes();
    //   categories   rows of the view: key, name, number of items, parent key
    //   items        key, name, category key, in the order in which they are to stand
    // Failure::NullValue for a category without a key.
    CategoryNodes(ListRows categories, ListRows items);

    // The root is number 0.
    const Node& node(int number) const { return nodes_[static_cast<std::size_t>(number)]; }
    // Their numbers: items first, then categories. What is given stays as long as this does.
    const std::vector<int>& children(int number);
    // Without making them.
    bool hasChildren(int number) const;

private:
    struct Inside {
        int key = 0;            // of the category; 0 for the root
        std::size_t level = 0;  // of its child categories
        bool known = false;     // its children, as far as it has any
        std::vector<int> children{};
    };
    std::vector<int> itemsUnder(const Inside& category) const;  // rows; none under the root
    void add(int parent, Node node, Inside inside);

    ListRows categories_;
    ListRows items_;
    std::map<int, std::vector<int>> categoriesOf_;     // rows by the key of their parent
    std::map<std::string, std::vector<int>> itemsOf_;  // rows by the key of their category
    std::deque<Node> nodes_;
    std::deque<Inside> insides_;  // of each node
};

}  // namespace torvane
