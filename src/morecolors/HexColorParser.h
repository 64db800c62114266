#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "colormodel/Globals.h"
#include "colormodel/Types.h"

namespace lumo {

class CommonGlobals;

// Reads a colour typed into the More Colors dialog: three hexadecimal components,
// red first, separated by two commas, each 0 to FF, with any spaces, braces, equals
// signs and the word "hex" anywhere. That is the dialog's own "Hex={RR,GG,BB}" and
// looser variants of it; "#RRGGBB", "&h..." and decimal triples are not colours here.
class HexColorParser {
 public:
  explicit HexColorParser(const CommonGlobals& errors) : errors_(errors), globals_(errors) {}

  // The colour the text spells, or nothing. A component of more than two characters
  // that is still in range (such as "0FF") cannot be padded to two digits: that
  // raises an invalid-argument error, which the caller reports.
  std::optional<OLE_COLOR> Parse(std::string_view text) const;

  // The text without "hex", "=", "{", "}" and " ", removed in that order, any case.
  static std::string StripDecoration(std::string_view text);

  // The parts before the first comma, between the first two, and everything after
  // the second (further commas included); nothing when there are fewer than two commas.
  static std::optional<std::array<std::string, 3>> SplitComponents(std::string_view text);

  // True when the text converts to a whole number within [low, high]; false when it
  // does not convert or lies outside. Unexpected errors are reported as the dialog's.
  bool InRange(std::string_view text, std::int32_t low, std::int32_t high) const;

 private:
  static std::string PadToTwo(const std::string& part);

  const CommonGlobals& errors_;
  Globals globals_;
};

}  // namespace lumo
