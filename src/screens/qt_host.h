#pragma once

#include <QString>
#include <string>

#include "host/host.h"

class QLocale;

namespace torvane {

// How a locale writes a short date: always with all four digits of the year, and without marks of the writing
// direction.
ShortDate shortDateOf(const QLocale& locale);

// The host over Qt's message boxes and file dialogs and the machine's own clock and date form.
class QtHost : public Host {
public:
    // The folder of the program, without a slash behind it.
    explicit QtHost(std::string programDirectory);

    Answer box(std::string_view text, std::string_view title, Buttons buttons = Buttons::Ok) override;
    void runtimeErrorBox(const RuntimeFailure& failure) override;
    void beep() override;
    std::optional<std::string> askSaveName(std::string_view proposed, std::string_view filter) override;
    std::optional<std::string> askOpenName(std::string_view filter) override;
    void startProgram(const std::string& path) override;
    Date today() const override;
    const ShortDate& shortDate() const override { return shortDate_; }
    const std::string& programDirectory() const override { return programDirectory_; }
    std::int16_t NoInList() const override { return 15; }

private:
    std::string programDirectory_;
    ShortDate shortDate_;
    QString lastFolder_;  // where the file dialogs open next
};

}  // namespace torvane
