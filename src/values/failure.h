#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace torvane {

// The failures that the program itself raises, by the number shown in the run-time error box. The database engine
// brings its own numbers (its result codes) and texts, the reader of character files its 321.
enum class Failure : int {
    InvalidCall = 5,
    Overflow = 6,
    Subscript = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    ObjectNotSet = 91,
    NullValue = 94,
};

// A failure that no rule of the program expects. It travels up to the event that started the work, where the event
// guard shows the run-time error box and ends the program. Whatever was executed before it stays executed.
class RuntimeFailure : public std::exception {
public:
    RuntimeFailure(int number, std::string text, std::string refused = {})
        : number_(number), text_(std::move(text)), refused_(std::move(refused)) {}

    int number() const { return number_; }
    const std::string& text() const { return text_; }
    // The value or statement that was refused; empty when there is none to name.
    const std::string& refused() const { return refused_; }
    // What was going on, as "opening the database"; empty when nobody said.
    const std::string& during() const { return during_; }
    void setDuring(std::string during) { during_ = std::move(during); }
    const char* what() const noexcept override { return text_.c_str(); }

private:
    int number_;
    std::string text_;
    std::string refused_;
    std::string during_;
};

[[noreturn]] void fail(Failure failure, std::string_view refused = {});

}  // namespace torvane
