#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "colormodel/StdFont.h"

namespace lumo {

// A value of one of the kinds that result slots and property bags carry: empty,
// boolean, 32-bit number, text or font. Conversions follow the platform's rules
// and raise a type mismatch (13) where it would.
class Variant {
 public:
  Variant() = default;
  Variant(bool value) : value_(value) {}                        // NOLINT(google-explicit-constructor)
  Variant(std::int32_t value) : value_(value) {}                // NOLINT(google-explicit-constructor)
  Variant(std::string value) : value_(std::move(value)) {}      // NOLINT(google-explicit-constructor)
  Variant(const char* value) : value_(std::string(value)) {}    // NOLINT(google-explicit-constructor)
  Variant(StdFont value) : value_(std::move(value)) {}          // NOLINT(google-explicit-constructor)

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsBoolean() const { return std::holds_alternative<bool>(value_); }
  bool IsLong() const { return std::holds_alternative<std::int32_t>(value_); }
  bool IsText() const { return std::holds_alternative<std::string>(value_); }
  bool IsFont() const { return std::holds_alternative<StdFont>(value_); }

  // CBool: empty is false, a number is true unless 0, a text must read "True",
  // "False" (any case) or a number.
  bool ToBoolean() const;
  // CLng: empty is 0, true is -1, a text goes through the "&h"-aware conversion.
  std::int32_t ToLong() const;
  // CStr: empty is "", booleans are "True"/"False", a font gives its name.
  std::string ToText() const;
  // A font, or a type mismatch for anything else.
  const StdFont& ToFont() const;

  // Same kind and same value.
  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  std::variant<std::monostate, bool, std::int32_t, std::string, StdFont> value_;
};

}  // namespace lumo
