#include "colormodel/RuntimeError.h"

#include <utility>

#include "colormodel/TextRules.h"

namespace lumo {

RuntimeError::RuntimeError(std::int32_t number) : RuntimeError(number, DescriptionOf(number)) {}

RuntimeError::RuntimeError(std::int32_t number, std::string description)
    : number_(number), description_(std::move(description)) {}

std::string RuntimeError::DescriptionOf(std::int32_t number) {
  switch (number) {
    case err::InvalidArgument: return "Invalid argument";
    case err::Overflow: return "Overflow";
    case err::OutOfMemory: return "Out of memory";
    case err::IndexOutOfRange: return "Index out of range";
    case err::DivisionByZero: return "Division by zero";
    case err::TypeMismatch: return "Type mismatch";
    case err::ObjectNotSet: return "Object not set";
    case err::Internal: return "Internal error";
    default: return "Application-defined error " + text::Decimal(number);
  }
}

}  // namespace lumo
