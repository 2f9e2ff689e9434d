#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "make_database/maker.h"

int main(int count, char** arguments) {
    const std::vector<std::string> given(arguments + 1, arguments + count);
    if (given.size() != 3 || (given[0] != "delivered" && given[0] != "sample")) {
        std::cerr << "usage: torvane_make_database delivered|sample <data folder> <database file>\n";
        return 2;
    }
    try {
        torvane::makeDatabase(given[1], given[2],
                              given[0] == "sample" ? torvane::Contents::Sample : torvane::Contents::Delivered);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
