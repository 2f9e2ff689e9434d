#include "calculators/scientific_machine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "values/failure.h"
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

std::string withSignInFront(std::string text) {
    const bool negative = text.front() == '-';
    const std::size_t first = negative ? 1 : 0;
    if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
    return negative ? text : " " + text;
}

std::int32_t truncated(double value) {
    return narrowToInt32(std::trunc(value));
}

double quotient(double dividend, double divisor) {
    if (divisor == 0) fail(Failure::DivisionByZero);
    return finite(dividend / divisor);
}

double remainderOf(double dividend, double divisor) {
    const std::int64_t whole = narrowToInt32(dividend);
    const std::int64_t by = narrowToInt32(divisor);
    if (by == 0) fail(Failure::DivisionByZero);
    return static_cast<double>(whole % by);
}

}  // namespace

std::string signedText(double value) {
    return withSignInFront(generalText(value));
}

std::string signedText(float value) {
    return withSignInFront(generalText(value));
}

// A linear congruential generator modulo 2^24, the step of a float below 1: a - 1 divisible by 4 and c odd give the
// full period.
float RandomNumbers::next() {
    constexpr std::uint32_t factor = 0x6A4C35;
    constexpr std::uint32_t step = 0x3D0B71;
    constexpr std::uint32_t mask = 0xFFFFFF;
    state_ = (state_ * factor + step) & mask;
    return static_cast<float>(state_) / static_cast<float>(mask + 1);
}

void ScientificMachine::Form_Load() {
    desk_.clearClipboard();
    Option2(0);
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
        carryOut(y);
        show(accumulator);
        entering = false;
    }
    opPressed = true;
    pointEntered = false;
    pendingOp = static_cast<std::int16_t>(index);
}

// `y` is never 0.
void ScientificMachine::carryOut(double y) {
    switch (pendingOp) {
        case plus:
            accumulator = finite(y + accumulator);
            break;
        case minus:
            accumulator = finite(accumulator - y);
            break;
        case divide:
            accumulator = quotient(accumulator, y);
            break;
        case times:
            accumulator = finite(y * accumulator);
            break;
        case combinations:
            combine(y, false);
            break;
        case remainder:
            accumulator = remainderOf(accumulator, y);
            break;
        case permutations:
            combine(y, true);
            break;
        case toThePower:
            raise(y);
            break;
        default:  // equals
            break;
    }
}

void ScientificMachine::combine(double y, bool order) {
    std::int32_t r = truncated(y);
    std::int32_t n = truncated(lenientNumber(generalText(accumulator)));
    if (n < r || n < 1 || r < 0) return say("ILLEGAL  ENTRIES  of  N ,R ");
    std::int32_t d = n - r;
    double divisor = fact(d);
    if (!order) divisor *= fact(r);
    accumulator = quotient(fact(n), divisor);
}

void ScientificMachine::raise(double y) {
    if (accumulator == 0) return say("ILLEGAL.  INVALIED ENTRIES");
    std::int32_t n = truncated(y);
    accumulator = power(accumulator, n);
}

void ScientificMachine::clearEntry() {
    accumulator = 0;
    pendingOp = plus;
    opPressed = entering = pointEntered = false;
}

void ScientificMachine::Command3() {
    setText1(" 0");
}

void ScientificMachine::Command4() {
    clearEntry();
    memoryValue = 0;
    savedCount = 0;
    desk_.clearClipboard();
    setText1(" 0");
}

void ScientificMachine::Command11() {
    std::string rest = Text1;
    // A character may be typed that takes several bytes.
    constexpr unsigned continuationMask = 0xC0;
    constexpr unsigned continuation = 0x80;
    while (!rest.empty()) {
        const auto last = static_cast<unsigned char>(rest.back());
        rest.pop_back();
        if ((last & continuationMask) != continuation) break;
    }
    setText1(rest);
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
        default:  // the arc sine and the arc cosine
            break;
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

void ScientificMachine::Command14() {
    show(value() * -1);
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
    const double y = value();
    switch (index) {
        case 0:
            memoryValue = finite(y + memoryValue);
            break;
        case 1:
            memoryValue = finite(memoryValue - y);
            break;
        case 2:
            memoryValue = finite(y * memoryValue);
            break;
        case 3:
            if (y == 0) return say("ILLEGAL. DIVIDE 0 ERROR ");
            memoryValue = quotient(memoryValue, y);
            break;
        case 4:
            show(memoryValue);
            accumulator = value();
            break;
        default:
            memoryValue = 0;
            break;
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
    while (n > 0) {
        const double next = finite(product * x);
        --n;
        if (std::abs(next) == std::abs(product)) {
            // Nothing but the sign changes from here on.
            product = n % 2 == 0 ? next : product;
            n = 0;
        } else {
            product = next;
        }
    }
    return product;
}

std::int32_t ScientificMachine::fact(std::int32_t& n) {
    if (n < 1 || n > largestFactorial) {
        say(n < 1 ? "ILLEGAL  NEAGETIVE  FACTORIAL" : "VALUE TOO LARGE");
        return n;
    }
    std::int32_t product = 1;
    for (; n > 0; --n) product *= n;
    return product;
}

// --- Keys ------------------------------------------------------------------------------------------------------------

bool ScientificMachine::KeyPress(char character) {
    constexpr std::string_view digits = "0123456789.";
    constexpr std::string_view operators = "+-/*=";
    const auto passOn = [&](std::size_t index, void (ScientificMachine::*handler)(int)) {
        desk_.beep();
        keyIndex = static_cast<std::int16_t>(index);
        (this->*handler)(keyIndex);
        return true;
    };
    if (const auto index = digits.find(character); index != std::string_view::npos)
        return passOn(index, &ScientificMachine::Command1);
    if (const auto index = operators.find(character); index != std::string_view::npos)
        return passOn(index, &ScientificMachine::Command2);
    switch (character) {
        case 'C':
        case 'c':
            desk_.beep();
            desk_.beep();
            clearEntry();
            setText1(" 0");
            return true;
        case 'D':
        case 'd':
            desk_.beep();
            setText1(" 0");
            return true;
        default:
            return false;
    }
}

// --- Texts -----------------------------------------------------------------------------------------------------------

double ScientificMachine::value() const {
    return lenientNumber(Text1);
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
    desk_.clearClipboard();
    desk_.setClipboard(std::string_view(Text1).substr(selectionStart_, selectionLength_));
}

void ScientificMachine::ecut() {
    ecopy();
    std::string rest = Text1;
    rest.erase(selectionStart_, selectionLength_);
    setText1(rest);
}

void ScientificMachine::epaste() {
    setText1("");
    setText1(desk_.clipboard());
}

void ScientificMachine::eselectall() {
    desk_.clearClipboard();
    desk_.setClipboard(Text1);
}

}  // namespace torvane
