#pragma once

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "calculators/scientific_machine.h"
#include "host/host.h"
#include "screens/form.h"

class QButtonGroup;
class QLabel;
class QMenuBar;

namespace torvane {

class TextBox;

// The scientific calculator's window: it paints the texts of its machine and passes on what is pressed. The state lives
// from load to unload; only the random numbers go on as long as the program runs.
class scientific : public Form, private CalculatorDesk {
public:
    // `showAbout`: what the entry "About" does.
    scientific(Program& program, std::function<void()> showAbout);

protected:
    void build(QWidget& window) override;
    void dropControls() override;
    void Form_Load() override;

private:
    void say(std::string_view message) override;
    void beep() override { program().host().beep(); }
    float random() override { return static_cast<float>(random_()) / static_cast<float>(RandomNumbers::modulus); }
    void clearClipboard() override;
    void setClipboard(std::string_view text) override;
    std::string clipboard() override;
    void textsChanged() override;

    void buildMenus(QMenuBar& bar);
    QWidget* buildDisplay();
    QWidget* buildAngle();
    QWidget* buildKeys();
    void connectText1();
    [[noreturn]] void missingCalculator();
    void keyPressed(char character);

    std::unique_ptr<ScientificMachine> machine_;
    // As fine as a float below 1, with the full period; the same numbers from each start of the program.
    using RandomNumbers = std::linear_congruential_engine<std::uint32_t, 0x6A4C35, 0x3D0B71, 0x1000000>;
    RandomNumbers random_{0x2B7E5D};
    std::function<void()> showAbout_;
    TextBox* Text1_ = nullptr;
    QLabel* Label1_ = nullptr;
    QLabel* Label2_ = nullptr;
    QButtonGroup* keys_ = nullptr;
};

}  // namespace torvane
