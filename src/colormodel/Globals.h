#pragma once

#include <string>
#include <string_view>

namespace lumo {

class CommonGlobals;

// Colour-text helpers shared by the hexagon control and the More Colors dialog.
class Globals {
 public:
  explicit Globals(const CommonGlobals& errors) : errors_(errors) {}

  // "Hex={" + text + "}", the text unchanged.
  std::string FormatHexText(std::string_view text) const;

  // True when each of the three texts, behind "&h", is a hexadecimal number; red,
  // then green, then blue, stopping at the first that is not. No range check.
  bool IsColor(std::string_view red, std::string_view green, std::string_view blue) const;

  // True when the text converts to a 32-bit whole number. Silent on failure.
  static bool IsLongValue(std::string_view text) noexcept;

 private:
  const CommonGlobals& errors_;
};

}  // namespace lumo
