#include <gtest/gtest.h>

#include <string>

#include "PopupFixture.h"
#include "colormodel/CColorboxEl.h"

namespace lumo {
namespace {

using testing::PopupFixture;

struct Typed {
  const char* name;
  const char* text;
  OLE_COLOR color;
  friend void PrintTo(const Typed& t, std::ostream* os) { *os << '"' << t.text << '"'; }
};

std::string CaseName(const ::testing::TestParamInfo<Typed>& info) { return info.param.name; }

class AcceptedHexText : public PopupFixture, public ::testing::WithParamInterface<Typed> {};

TEST_P(AcceptedHexText, SetsTheTypedColourAndClearsAutomatic) {
  dialog.SetIsAutomatic(false);
  Type(GetParam().text);
  EXPECT_FALSE(dialog.IsAutomatic());
  EXPECT_EQ(dialog.Color(), GetParam().color);
  EXPECT_EQ(Swatch("picNew"), GetParam().color);
  CColorboxEl typed(host.Errors());
  typed.SetColor(GetParam().color);
  EXPECT_EQ(BoxText(), "Hex={" + typed.GetColorString() + "}");
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Forms, AcceptedHexText,
    ::testing::Values(Typed{"Plain", "FF,80,0", RGB(0xFF, 0x80, 0)},
                      Typed{"OwnFormLowerCase", "hex={ff, 80, 00}", RGB(0xFF, 0x80, 0)},
                      Typed{"SpacedSingleDigits", "Hex = { 0A , B , C }", RGB(0x0A, 0x0B, 0x0C)},
                      Typed{"White", "ff,ff,ff", 0xFFFFFF}, Typed{"Black", "0,0,0", 0},
                      Typed{"NotInTheTable", "HEX{1,2,3}", RGB(1, 2, 3)}),
    CaseName);

class RejectedHexText : public PopupFixture, public ::testing::WithParamInterface<Typed> {};

TEST_P(RejectedHexText, FallsBackToAutomaticAndWritesTheAutomaticText) {
  dialog.SetAllowAutomatic(true);
  dialog.SetAutomaticText("Automatic");
  dialog.SetIsAutomatic(false);
  dialog.SetColor(0xFFFFFF);
  Type(GetParam().text);
  EXPECT_TRUE(dialog.IsAutomatic());
  EXPECT_EQ(BoxText(), "Automatic");
  EXPECT_EQ(dialog.Color(), 0xFFFFFF);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Forms, RejectedHexText,
    ::testing::Values(Typed{"HashForm", "#FF8000", 0}, Typed{"AmpersandH", "&hFF8000", 0},
                      Typed{"DecimalIsReadAsHex", "255,128,0", 0}, Typed{"OneNumber", "FF", 0},
                      Typed{"TwoParts", "1,2", 0}, Typed{"FourParts", "1,2,3,4", 0},
                      Typed{"Over255", "100,0,0", 0}, Typed{"NotHex", "G0,0,0", 0},
                      Typed{"EmptyPart", ",0,0", 0}, Typed{"Negative", "-1,0,0", 0}),
    CaseName);

TEST_F(PopupFixture, FallbackWithoutAutomaticGivesBlack) {
  dialog.SetAutomaticText("Automatic");
  dialog.SetIsAutomatic(false);
  dialog.SetColor(0xFFFFFF);
  Type("nonsense");
  EXPECT_FALSE(dialog.IsAutomatic());
  EXPECT_EQ(dialog.Color(), 0);
  // The automatic text is written first; the hexagon's ColorChanged for black follows.
  EXPECT_EQ(BoxText(), "Hex={00,00,00}");
}

TEST_F(PopupFixture, WhileAutomaticEvenAValidTextIsReplaced) {
  dialog.SetAllowAutomatic(true);
  dialog.SetAutomaticText("Auto");
  Type("ff,0,0");
  EXPECT_TRUE(dialog.IsAutomatic());
  EXPECT_EQ(BoxText(), "Auto");
  EXPECT_EQ(dialog.Color(), ColorHexagon::DefaultColor);
}

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
