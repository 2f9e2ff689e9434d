#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace torvane {

// Texts of controls are UTF-8 std::string towards the screens: records, SQL and boxes all take them as they are.
std::string utf8(const QString& text);
QString qstring(std::string_view text);

// The text on one line: each line break and each tab is a blank.
QString oneLine(QString text);

}  // namespace torvane
