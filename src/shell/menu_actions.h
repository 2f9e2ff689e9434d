#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace torvane {

class FileSystem;
struct Screens;

// What an entry of the main window's menus does; an entry without one has nothing behind it.
struct MenuAction {
    std::string_view entry;
    std::function<void()> act;
};

// Every entry that does something. The screens must live as long as what is given.
std::vector<MenuAction> menuActions(Screens& screens, FileSystem& files);

}  // namespace torvane
