#include "values/failure.h"

#include <algorithm>
#include <utility>

namespace torvane {

namespace {

constexpr std::pair<Failure, const char*> words[] = {
    {Failure::InvalidCall, "Invalid call"},         {Failure::Overflow, "Overflow"},
    {Failure::Subscript, "Subscript out of range"}, {Failure::DivisionByZero, "Division by zero"},
    {Failure::TypeMismatch, "Type mismatch"},       {Failure::FileNotFound, "File not found"},
    {Failure::ObjectNotSet, "Object not set"},      {Failure::NullValue, "Null where a value is needed"},
};

}  // namespace

void fail(Failure failure, std::string_view refused) {
    const auto* const known = std::ranges::find(words, failure, &std::pair<Failure, const char*>::first);
    throw RuntimeFailure(static_cast<int>(failure), known->second, std::string(refused));
}

}  // namespace torvane
