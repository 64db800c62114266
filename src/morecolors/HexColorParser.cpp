#include "morecolors/HexColorParser.h"

#include "colormodel/CommonGlobals.h"
#include "colormodel/TextRules.h"

namespace lumo {
namespace {

constexpr const char* kHexPrefix = "&h";

std::int32_t ComponentValue(const std::string& part) { return text::ToLong(kHexPrefix + part); }

}  // namespace

std::optional<OLE_COLOR> HexColorParser::Parse(std::string_view input) const {
  auto parts = SplitComponents(StripDecoration(input));
  if (!parts) return std::nullopt;
  for (const std::string& part : *parts) {
    if (!InRange(kHexPrefix + part, 0, 255)) return std::nullopt;
  }
  for (std::string& part : *parts) part = PadToTwo(part);
  const auto& [red, green, blue] = *parts;
  if (!globals_.IsColor(red, green, blue)) return std::nullopt;
  return RGB(ComponentValue(red), ComponentValue(green), ComponentValue(blue));
}

std::string HexColorParser::StripDecoration(std::string_view input) {
  std::string stripped(input);
  for (const char* noise : {"hex", "=", "{", "}", " "}) {
    stripped = text::Replace(stripped, noise, "", text::Compare::Text);
  }
  return stripped;
}

std::optional<std::array<std::string, 3>> HexColorParser::SplitComponents(std::string_view input) {
  const std::int32_t first = text::InStr(1, input, ",");
  if (first == 0) return std::nullopt;
  const std::int32_t second = text::InStr(first + 1, input, ",");
  if (second == 0) return std::nullopt;
  const auto firstAt = static_cast<std::size_t>(first - 1);
  const auto secondAt = static_cast<std::size_t>(second - 1);
  return std::array<std::string, 3>{std::string(input.substr(0, firstAt)),
                                    std::string(input.substr(firstAt + 1, secondAt - firstAt - 1)),
                                    std::string(input.substr(secondAt + 1))};
}

bool HexColorParser::InRange(std::string_view input, std::int32_t low, std::int32_t high) const {
  bool result = false;
  errors_.Trap("frmPopup", "InRange", [&] {
    if (!Globals::IsLongValue(input)) return;
    const std::int32_t value = text::ToLong(input);
    result = low <= value && value <= high;
  });
  return result;
}

// Left-pads with "0" to two characters. The count goes negative for a longer part,
// which is the platform's invalid-argument error: such input is reported, not read.
std::string HexColorParser::PadToTwo(const std::string& part) {
  return text::Repeat(2 - text::Len(part), '0') + part;
}

}  // namespace lumo
