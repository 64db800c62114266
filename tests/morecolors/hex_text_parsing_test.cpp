#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>

#include "PopupFixture.h"
#include "morecolors/HexColorParser.h"

namespace lumo {
namespace {

using testing::PopupFixture;

struct Spelling {
  const char* text;
  std::optional<OLE_COLOR> color;
  friend void PrintTo(const Spelling& s, std::ostream* os) { *os << '"' << s.text << '"'; }
};

class HexSpelling : public ::testing::TestWithParam<Spelling> {
 protected:
  testing::TestHost host;
};

TEST_P(HexSpelling, ReadsThreeHexComponentsInAnyDecorationAndNothingElse) {
  EXPECT_EQ(HexColorParser(host.Errors()).Parse(GetParam().text), GetParam().color);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, HexSpelling,
    ::testing::Values(Spelling{"FF,80,0", RGB(0xFF, 0x80, 0)}, Spelling{"hex={ff, 80, 00}", RGB(0xFF, 0x80, 0)},
                      Spelling{"Hex = { 0A , B , C }", RGB(0x0A, 0x0B, 0x0C)}, Spelling{"ff,ff,ff", 0xFFFFFF},
                      Spelling{"0,0,0", 0}, Spelling{"HEX{1,2,3}", RGB(1, 2, 3)}, Spelling{"#FF8000", {}},
                      Spelling{"&hFF8000", {}}, Spelling{"255,128,0", {}}, Spelling{"FF", {}}, Spelling{"1,2", {}},
                      Spelling{"1,2,3,4", {}}, Spelling{"100,0,0", {}}, Spelling{"G0,0,0", {}},
                      Spelling{",0,0", {}}, Spelling{"-1,0,0", {}}));

// What the box does with its text when it loses the focus, starting from white.
struct Typed {
  const char* name;
  bool allowAutomatic, startAutomatic;
  const char* text;
  bool endAutomatic;
  OLE_COLOR color;
  const char* boxText;
  friend void PrintTo(const Typed& t, std::ostream* os) { *os << t.name; }
};

class TypedText : public PopupFixture, public ::testing::WithParamInterface<Typed> {};

TEST_P(TypedText, SetsTheTypedColourOrFallsBack) {
  const Typed& t = GetParam();
  dialog.SetAllowAutomatic(t.allowAutomatic);
  dialog.SetAutomaticText("Automatic");
  dialog.SetIsAutomatic(false);
  dialog.SetColor(0xFFFFFF);
  dialog.SetIsAutomatic(t.startAutomatic);
  Type(t.text);
  EXPECT_EQ(std::tuple(dialog.IsAutomatic(), dialog.Color(), BoxText()),
            std::tuple(t.endAutomatic, t.color, std::string(t.boxText)));
  if (!t.endAutomatic) { EXPECT_EQ(Swatch("picNew"), t.color); }
  EXPECT_TRUE(host.Messages.Shown.empty());
}

// The automatic text is written first when automatic is not allowed; the hexagon's
// ColorChanged for black follows.
INSTANTIATE_TEST_SUITE_P(
    Outcomes, TypedText,
    ::testing::Values(Typed{"AColourNotInTheHoneycomb", true, false, "HEX{1,2,3}", false, RGB(1, 2, 3), "Hex={01,02,03}"},
                      Typed{"NoColourFallsBackToAutomatic", true, false, "#FF8000", true, 0xFFFFFF, "Automatic"},
                      Typed{"NoColourWithoutAutomaticGivesBlack", false, false, "nonsense", false, 0, "Hex={00,00,00}"},
                      Typed{"WhileAutomaticEvenAColourIsReplaced", true, true, "ff,0,0", true, 0xFFFFFF, "Automatic"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PopupFixture, AThreeDigitComponentInRangeIsReportedAndChangesNothing) {
  dialog.SetIsAutomatic(false);
  dialog.SetColor(0xFFFFFF);
  Type("0FF,0,0");
  ASSERT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_EQ(host.Messages.Shown[0].Prompt,
            "Error Number: 5\r\nModule: frmPopup\r\nProcedure: ParseHexText\r\n\r\nInvalid argument\r\n");
  EXPECT_EQ(dialog.Color(), 0xFFFFFF);
  EXPECT_EQ(BoxText(), "0FF,0,0");
}

}  // namespace
}  // namespace lumo
