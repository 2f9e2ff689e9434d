#include "values/failure.h"

namespace torvane {

namespace {

const char* wordsFor(Failure failure) {
    switch (failure) {
        case Failure::InvalidCall:
            return "Invalid call";
        case Failure::Overflow:
            return "Overflow";
        case Failure::Subscript:
            return "Subscript out of range";
        case Failure::DivisionByZero:
            return "Division by zero";
        case Failure::TypeMismatch:
            return "Type mismatch";
        case Failure::FileNotFound:
            return "File not found";
        case Failure::ObjectNotSet:
            return "Object not set";
        case Failure::NullValue:
            return "Null where a value is needed";
    }
    return "Failure";
}

}  // namespace

void fail(Failure failure, std::string_view refused) {
    throw RuntimeFailure(static_cast<int>(failure), wordsFor(failure), std::string(refused));
}

}  // namespace torvane
