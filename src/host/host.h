#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "values/dates.h"

namespace torvane {

class RuntimeFailure;

enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

// The title of a box for which the system asks the default one. Where a title is said to be empty, pass "".
inline constexpr std::string_view defaultTitle = "Torvane Construction Estimator";

// What records and screens ask of the machine around them. The program has one over Qt; tests have one that holds the
// questions it expects. Texts are UTF-8.
class Host {
public:
    virtual ~Host() = default;

    // A message box without an icon; returns when it has been answered. Closing it counts as Ok, or as No.
    virtual Answer box(std::string_view text, std::string_view title, Buttons buttons = Buttons::Ok) = 0;
    // The box of a failure that ends the program; returns when it has been closed.
    virtual void runtimeErrorBox(const RuntimeFailure& failure) = 0;
    // The plain sound of the machine.
    virtual void beep() = 0;

    // File dialogs; the full name that was chosen, or nothing after Cancel. The save dialog asks no question of its own
    // about a file that exists, and the open dialog takes a name that does not exist. `filter` is "Words (*.ext)".
    virtual std::optional<std::string> askSaveName(std::string_view proposed, std::string_view filter) = 0;
    virtual std::optional<std::string> askOpenName(std::string_view filter) = 0;

    // Starts another program, in a window of its own and without arguments; nothing waits for it. Failure::FileNotFound
    // when it is not there or can't be run.
    virtual void startProgram(const std::string& path) = 0;

    virtual Date today() const = 0;
    // How this machine writes a date.
    virtual const ShortDate& shortDate() const = 0;

    // The folder of the program, without a slash behind it: the database, the character and the help stand there.
    virtual const std::string& programDirectory() const = 0;
    // Rows per page of every list.
    virtual std::int16_t NoInList() const = 0;
};

}  // namespace torvane
