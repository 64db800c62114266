// Fuzzes the More Colors dialog's colour-text parser (HexColorParser::Parse) against its
// rules. After the decoration ("hex", "=", "{", "}", " ", any case) is removed, the text
// splits at its first two commas into red, green and blue; then:
// - three parts that read as "&h" numbers within 0..FF, each at most two characters, give
//   exactly that colour (red in the low byte), and never a system colour;
// - a part in range but longer than two characters is an invalid argument (5), raised to
//   the caller; any other text is no colour; nothing is ever reported on the way;
// - a parsed colour written as the dialog writes it ("Hex={RR,GG,BB}") reads back the same.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "FuzzCheck.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/MessageBox.h"
#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"
#include "morecolors/HexColorParser.h"

namespace {

using lumo::fuzz::Require;

class CountingMessageBox : public lumo::MessageBox {
 public:
  std::int32_t MsgBox(const std::string&, std::int32_t, const std::string&) override {
    ++shown;
    return 1;
  }
  int shown = 0;
};

// The component a part spells, or nothing when it is not an "&h" number within 0..FF.
std::optional<std::int32_t> Component(const std::string& part) {
  try {
    const std::int32_t value = lumo::text::ToLong("&h" + part);
    if (value >= 0 && value <= 0xFF) return value;
  } catch (const lumo::RuntimeError&) {
  }
  return std::nullopt;
}

struct Expected {
  std::optional<lumo::OLE_COLOR> color;
  bool invalidArgument = false;
};

Expected Expect(std::string_view input) {
  const auto parts = lumo::HexColorParser::SplitComponents(lumo::HexColorParser::StripDecoration(input));
  if (!parts) return {};
  std::array<std::int32_t, 3> rgb{};
  bool tooLong = false;
  for (std::size_t i = 0; i < 3; ++i) {
    const auto value = Component((*parts)[i]);
    if (!value) return {};
    rgb[i] = *value;
    tooLong = tooLong || (*parts)[i].size() > 2;
  }
  if (tooLong) return {{}, true};
  return {lumo::RGB(rgb[0], rgb[1], rgb[2]), false};
}

std::string DialogText(lumo::OLE_COLOR color) {
  char text[32];
  std::snprintf(text, sizeof text, "Hex={%02X,%02X,%02X}", color & 0xFF, (color >> 8) & 0xFF,
                (color >> 16) & 0xFF);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  CountingMessageBox box;
  const lumo::CommonGlobals errors(box);
  const lumo::HexColorParser parser(errors);

  std::optional<lumo::OLE_COLOR> color;
  std::int32_t error = 0;
  try {
    color = parser.Parse(input);
  } catch (const lumo::RuntimeError& e) {
    error = e.Number();
  }
  Require(box.shown == 0, "parsing reports nothing itself");

  const Expected expected = Expect(input);
  Require(error == (expected.invalidArgument ? lumo::err::InvalidArgument : 0),
          "only an over-long part in range is an invalid argument");
  Require(color == expected.color, "the colour is the one the three parts spell");
  if (color) {
    Require(!lumo::IsSystemColor(*color) && *color <= 0xFFFFFF, "a parsed colour is a plain RGB");
    Require(parser.Parse(DialogText(*color)) == color, "the dialog's own text reads back");
  }
  return 0;
}
