#include "calculators/scientific_machine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "values/failure.h"
#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr double pi = 3.141592654;
constexpr double coarsePi = 3.14;
constexpr double halfTurnInDegrees = 180;
constexpr double halfTurnInGrads = 200;

// Operators by their index in Command2.
enum Operator { plus, minus, divide, times, equals, combinations, remainder, permutations, toThePower };

// Of the square and the cube: just below, the rounded result still fits 32 bits.
constexpr double squareLimit = 46300;
constexpr double cubeLimit = 1290;
constexpr double exponentLimit = 700;
constexpr std::int32_t largestFactorial = 12;

// The signed form of a number: a blank in front, or the minus sign, and no zero before the point; else as generalText
// (15 significant digits, 7 for a float). 0.5 is " .5", -0.5 is "-.5", 0 is " 0".
template <class Number>
std::string signedText(Number value) {
    std::string text = generalText(value);
    if (text.front() != '-') text.insert(0, 1, ' ');
    if (text.compare(1, 2, "0.") == 0) text.erase(1, 1);
    return text;
}

std::int32_t truncated(double value) {
    return narrowToInt32(std::trunc(value));
}

double quotient(double dividend, double divisor) {
    if (divisor == 0) fail(Failure::DivisionByZero);
    return finite(dividend / divisor);
}

double arithmetic(Operator operation, double a, double b) {
    switch (operation) {
        case plus:
            return finite(a + b);
        case minus:
            return finite(a - b);
        case times:
            return finite(a * b);
        default:
            return quotient(a, b);
    }
}

double remainderOf(double dividend, double divisor) {
    const std::int64_t whole = narrowToInt32(dividend);
    const std::int64_t by = narrowToInt32(divisor);
    if (by == 0) fail(Failure::DivisionByZero);
    return static_cast<double>(whole % by);
}

}  // namespace

void ScientificMachine::Form_Load() {
    desk_.clearClipboard();
    angleFactor = coarsePi / halfTurnInDegrees;
}

// --- Entry -----------------------------------------------------------------------------------------------------------

void ScientificMachine::Command1(int index) {
    constexpr int point = 10;
    constexpr int twoZeros = 11;
    if (pendingOp == equals) {
        accumulator = 0;
        setText1(" ");
        pendingOp = plus;
    }
    opPressed = false;
    if (!entering) setText1(" ");
    entering = true;
    if (index == point) {
        if (pointEntered) return say("ILLEGAL VELMOR");
        setText1(Text1 + ".");
        pointEntered = true;
        return;
    }
    const std::string digits = index == twoZeros ? "00" : std::to_string(index);
    setText1(Text1 == " 0" ? " " + digits : Text1 + digits);
}

void ScientificMachine::Command2(int index) {
    const double y = value();
    if (y == 0) return;
    if (index == equals || !opPressed) {
        accumulator = carriedOut(y);
        show(accumulator);
        entering = false;
    }
    opPressed = true;
    pointEntered = false;
    pendingOp = static_cast<std::int16_t>(index);
}

// `y` is never 0.
double ScientificMachine::carriedOut(double y) {
    if (pendingOp <= times) return arithmetic(static_cast<Operator>(pendingOp), accumulator, y);
    if (pendingOp == combinations || pendingOp == permutations) return combined(y);
    if (pendingOp == remainder) return remainderOf(accumulator, y);
    if (pendingOp == toThePower) return raised(y);
    return accumulator;  // behind "="
}

double ScientificMachine::combined(double y) {
    std::int32_t r = truncated(y);
    std::int32_t n = truncated(lenientNumber(generalText(accumulator)));
    if (n < r || n < 1 || r < 0) {
        say("ILLEGAL  ENTRIES  of  N ,R ");
        return accumulator;
    }
    std::int32_t d = n - r;
    double divisor = fact(d);
    if (pendingOp == combinations) divisor *= fact(r);
    return quotient(fact(n), divisor);
}

double ScientificMachine::raised(double y) {
    if (accumulator == 0) {
        say("ILLEGAL.  INVALIED ENTRIES");
        return accumulator;
    }
    std::int32_t n = truncated(y);
    return power(accumulator, n);
}

void ScientificMachine::clearEntry() {
    accumulator = 0;
    pendingOp = plus;
    opPressed = entering = pointEntered = false;
}

void ScientificMachine::Command4() {
    clearEntry();
    memoryValue = 0;
    savedCount = 0;
    desk_.clearClipboard();
    Command3();
}

void ScientificMachine::Command11() {
    std::string shorter = Text1;
    // A character may be typed that takes several bytes: all but its first begin with the bits 10.
    while (!shorter.empty() && (static_cast<unsigned char>(shorter.back()) & 0xC0U) == 0x80U) shorter.pop_back();
    if (!shorter.empty()) shorter.pop_back();
    setText1(shorter);
}

// --- Functions of the number on display ------------------------------------------------------------------------------

void ScientificMachine::Command5(int index) {
    const double x = value();
    switch (index) {
        case 0:
            return show(std::sin(x * angleFactor));
        case 1:
            return show(std::cos(x * angleFactor));
        case 2:
            if (std::cos(x) == 0) return say("ILLEGAL.  DIVIDE  BY  ZERO ");
            return show(quotient(std::sin(x * angleFactor), std::cos(x * angleFactor)));
        case 5:
            return show(std::atan(x) / angleFactor);
        default:  // nothing behind the arc sine and the arc cosine
            return;
    }
}

void ScientificMachine::Command6(int index) {
    const double x = value();
    std::int32_t m = narrowToInt32(x);
    const double whole = m;
    switch (index) {
        case 0:
            if (m == 0) return say(" ILLEGAL  DIVIDE  0 ");
            return show(1 / whole);
        case 1:
            if (std::abs(x) >= squareLimit) return say(" ILLEGAL  DIVIDE  0 ");
            return show(whole * whole);
        case 2:
            if (m < 0) return say(" ILLEGAL  ATTEMPTING  NEGETIVE  ROOT");
            if (x < 0) fail(Failure::InvalidCall);
            return show(std::sqrt(x));
        case 4:
            return show(fact(m));
        case 8:
            if (std::abs(x) >= cubeLimit) return say("OVERFLOW. VALUE TOO LARGE ");
            return show(whole * whole * whole);
        default:
            break;
    }
}

void ScientificMachine::Command10(int index) {
    switch (index) {
        case 0:
            return logarithm(" ILLEGAL.  LOG  NON  POSITIVE ", 1);
        case 1:
            return logarithm(" ILLEGAL. LOG  NON  POSITIVE ", std::log(10.0));
        default:
            if (value() >= exponentLimit) return say(" OVERFLOW. VALUE TOO BIG ");
            return show(std::exp(value()));
    }
}

void ScientificMachine::logarithm(std::string_view refusal, double divisor) {
    if (value() <= 0) return say(refusal);
    show(std::log(value()) / divisor);
}

void ScientificMachine::Option2(int index) {
    constexpr double factors[] = {pi / halfTurnInDegrees, 1, pi / halfTurnInGrads};
    angleFactor = factors[index];
}

void ScientificMachine::Command9(int index) {
    constexpr const char* constants[] = {"", "3.141592654", "2.718281828", "9.86", "6.625"};
    setText1(index == 0 ? signedText(desk_.random()) : constants[index]);
    opPressed = false;
    entering = true;
}

// --- Memory and saved list -------------------------------------------------------------------------------------------

void ScientificMachine::Command7(int index) {
    constexpr Operator operations[] = {plus, minus, times, divide};
    const double y = value();
    if (index == 3 && y == 0) return say("ILLEGAL. DIVIDE 0 ERROR ");
    if (index < 4) {
        memoryValue = arithmetic(operations[index], memoryValue, y);
    } else if (index == 4) {
        show(memoryValue);
        accumulator = value();
    } else {
        memoryValue = 0;
    }
}

void ScientificMachine::Command8(int index) {
    const auto count = static_cast<std::size_t>(savedCount);
    const auto saved = [this]() -> double& { return savedValues[static_cast<std::size_t>(viewPos)]; };
    switch (index) {
        case 0:
            if (count == savedValues.size()) fail(Failure::Subscript);
            savedValues[count] = value();
            ++savedCount;
            break;
        case 1:
            viewPos = qnext(viewPos);
            setLabel1(signedText(saved()));
            break;
        case 2:
            if (count == 0) break;
            saved() = savedValues[count - 1];
            setLabel1(signedText(saved()));
            --savedCount;
            break;
        default:
            setText1(Label1);
            break;
    }
}

std::int16_t ScientificMachine::qnext(const std::int16_t& q) const {
    return savedCount == 0 ? std::int16_t{0} : static_cast<std::int16_t>((q + 1) % savedCount);
}

double ScientificMachine::power(const double& x, std::int32_t& n) {
    if (n < 0) {
        say("ILLEGAL. POWER LESTHAN 0.");
        return 0;
    }
    double product = 1;
    for (; n > 0; --n) {
        const double next = finite(product * x);
        // Nothing but the sign changes from here on: of the factors that are left, one or two do.
        if (std::abs(next) == std::abs(product)) n = 2 - n % 2;
        product = next;
    }
    return product;
}

std::int32_t ScientificMachine::fact(std::int32_t& n) {
    const bool tooLarge = n > largestFactorial;
    if (n < 1 || tooLarge) {
        say(tooLarge ? "VALUE TOO LARGE" : "ILLEGAL  NEAGETIVE  FACTORIAL");
        return n;
    }
    std::int32_t product = 1;
    for (; n > 0; --n) product *= n;
    return product;
}

// --- Keys ------------------------------------------------------------------------------------------------------------

bool ScientificMachine::KeyPress(char character) {
    constexpr std::string_view keys = "0123456789.+-/*=";
    constexpr std::size_t digits = 11;  // with the point; then come operators
    const std::size_t at = keys.find(character);
    const char letter = lower(character);
    if (at == std::string_view::npos && letter != 'c' && letter != 'd') return false;
    desk_.beep();
    if (at != std::string_view::npos) {
        keyIndex = static_cast<std::int16_t>(at % digits);
        at < digits ? Command1(keyIndex) : Command2(keyIndex);
        return true;
    }
    if (letter == 'c') {
        desk_.beep();
        clearEntry();
    }
    Command3();
    return true;
}

// --- Texts -----------------------------------------------------------------------------------------------------------

double ScientificMachine::value() const {
    return lenientNumber(Text1);
}

void ScientificMachine::show(double result) {
    setText1(signedText(result));
}

void ScientificMachine::setText1(std::string text) {
    select(0, 0);
    if (text == Text1) return;
    Text1 = std::move(text);
    Label2 = Text1;
    desk_.textsChanged();
}

void ScientificMachine::setLabel1(std::string text) {
    Label1 = std::move(text);
    desk_.textsChanged();
}

void ScientificMachine::select(std::size_t start, std::size_t length) {
    selectionStart_ = std::min(start, Text1.size());
    selectionLength_ = length;
}

void ScientificMachine::ecopy() {
    desk_.setClipboard(std::string_view(Text1).substr(selectionStart_, selectionLength_));
}

void ScientificMachine::ecut() {
    ecopy();
    std::string rest = Text1;
    rest.erase(selectionStart_, selectionLength_);
    setText1(rest);
}

void ScientificMachine::epaste() {
    setText1(desk_.clipboard());
}

void ScientificMachine::eselectall() {
    desk_.setClipboard(Text1);
}

}  // namespace torvane
