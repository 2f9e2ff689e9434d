#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace torvane {

// What the scientific calculator asks of the window around it. Texts are UTF-8.
class CalculatorDesk {
public:
    virtual ~CalculatorDesk() = default;
    virtual void say(std::string_view message) = 0;  // a box with OK; returns when it has been answered
    virtual void beep() = 0;
    virtual float random() = 0;  // from 0 up to 1
    virtual void clearClipboard() = 0;
    virtual void setClipboard(std::string_view text) = 0;
    virtual std::string clipboard() = 0;
    // Text1, Label1 or Label2 has changed.
    virtual void textsChanged() = 0;
};

// The scientific calculator without its window: a text machine with one pending operator. The number on display is the
// text of Text1, read leniently by every operation and written back in a signed form. Handlers bear the names of the
// button arrays, the argument is the index of the button. What the rules test is said in a box, and the display stays;
// Failure::Overflow comes from any result beyond the range of a double, and from a whole number that needs more than 32
// bits. A failure leaves what was written before it.
class ScientificMachine {
public:
    explicit ScientificMachine(CalculatorDesk& desk) : desk_(desk) {}

    // Clears the clipboard and selects degrees, with their coarse factor.
    void Form_Load();

    void Command1(int index);             // digits, point, "00"
    void Command2(int index);             // operators and "="; %: Failure::DivisionByZero, as ncr and npr
    void Command3() { setText1(" 0"); }   // "C"
    void Command4();                      // "AC"; clears the clipboard, too
    void Command5(int index);             // trigonometry; nothing for 3 and 4
    void Command6(int index);             // functions of the rounded number; root of one below 0: Failure::InvalidCall
    void Command7(int index);             // memory
    void Command8(int index);             // saved list; push on a full one: Failure::Subscript
    void Command9(int index);             // constants
    void Command10(int index);            // logarithms, exponential
    void Command11();                     // "Back"
    void Command14() { show(-value()); }  // change of sign
    void Option2(int index);              // degrees, radians, grads

    // A character key, before the control with the focus gets it. True when it was one of the calculator's.
    bool KeyPress(char character);

    // The edit menu. The selected part of Text1 is given in bytes; a text that code writes has none.
    void select(std::size_t start, std::size_t length);
    void ecut();
    void ecopy();
    void epaste();
    void eselectall();

    // What stands in the display now, typed or written: Label2 follows.
    void setText1(std::string text);

    // (q + 1) modulo savedCount; 0 when savedCount is 0.
    std::int16_t qnext(const std::int16_t& q) const;
    // The product of n factors x, with n counted down to 0; 1 for n = 0. A negative n is answered by a box and 0.
    double power(const double& x, std::int32_t& n);
    // n!, with n counted down to 0, for 1 to 12. Any other n is answered by a box and comes back unchanged.
    std::int32_t fact(std::int32_t& n);

    double accumulator = 0;
    std::int16_t pendingOp = 0;  // index in Command2
    bool opPressed = false;
    bool entering = false;
    bool pointEntered = false;
    double memoryValue = 0;
    double angleFactor = 0;  // radians per unit on display
    std::array<double, 26> savedValues{};
    std::int16_t savedCount = 0;
    std::int16_t viewPos = 0;
    std::int16_t keyIndex = 0;
    std::string Text1;
    std::string Label1;
    std::string Label2 = "0.";

private:
    double value() const;  // of Text1
    void show(double result);
    void say(std::string_view message) { desk_.say(message); }
    void setLabel1(std::string text);
    void clearEntry();  // what "AC" and the key C have in common
    // What the pending operator makes of the accumulator.
    double carriedOut(double y);
    double combined(double y);
    double raised(double y);
    void logarithm(std::string_view refusal, double divisor);

    CalculatorDesk& desk_;
    std::size_t selectionStart_ = 0;
    std::size_t selectionLength_ = 0;
};

}  // namespace torvane
