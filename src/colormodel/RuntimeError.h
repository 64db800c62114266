#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace lumo {

// The error codes the library raises itself. Numbers are the platform's.
namespace err {
inline constexpr std::int32_t InvalidArgument = 5;
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t OutOfMemory = 7;
inline constexpr std::int32_t IndexOutOfRange = 9;
inline constexpr std::int32_t DivisionByZero = 11;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t Internal = 51;
inline constexpr std::int32_t ObjectNotSet = 91;
}  // namespace err

// A run-time error as the controls' procedures catch and report it: a number and a
// description. Thrown inside the core only; the error trap stops every one of them.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(std::int32_t number);
  RuntimeError(std::int32_t number, std::string description);

  std::int32_t Number() const noexcept { return number_; }
  const std::string& Description() const noexcept { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

  // Our own short description of a code; a generic text for codes we never raise.
  static std::string DescriptionOf(std::int32_t number);

 private:
  std::int32_t number_;
  std::string description_;
};

}  // namespace lumo
