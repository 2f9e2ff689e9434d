#pragma once

#include <string>
#include <vector>

#include "datastore/rows.h"

namespace torvane {

// A node of the item sheet's tree, in the order of insertion, with its parent's place in the same list (-1: none).
struct CategoryNode {
    std::string key;  // "R" root, "C..", "C1_..", "C2_.." categories of three levels, "I.." items
    std::string text;
    int parent = -1;
};

// The tree: top categories, their items, their children and so on, three levels deep; deeper categories and their items
// are left out. The items of a category are those whose category key begins with the digits of its own key: category 1
// lists the items of category 12, too. That is how searches in this system match, and here it stays so.
//   categories   rows of the view: key, name, number of items, parent key
//   items        key, name, category key, in the order in which they are to stand
std::vector<CategoryNode> categoryNodes(const ListRows& categories, const ListRows& items);

}  // namespace torvane
