#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "morecolors/HexColorParser.h"
#include "morecolors/frmPopup.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::TestForm;

// A loaded shared dialog on the headless host, and its form's children by name.
class PopupFixture : public ::testing::Test {
 protected:
  testing::TestHost host;
  frmPopup& dialog = frmPopup::Instance(host.Runtime);

  void SetUp() override { dialog.Load(); }
  TestForm& Form() const { return *host.Windows.LastForm("frmPopup"); }
  std::string BoxText() const { return Form().TextBoxNamed("txtColor").Text(); }
  OLE_COLOR Swatch(const std::string& name) const { return Form().RecordingSurfaceNamed(name).BackColor(); }
  void Type(const std::string& text) {
    Form().TextBoxNamed("txtColor").SetText(text);
    Form().LeaveControl("txtColor");
  }
};

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

TEST_F(PopupFixture, LoadsTheHostedHexagonAndLaysTheSwatchesOut) {
  EXPECT_EQ(Form().Caption(), "More Colors");
  ASSERT_NE(dialog.Hexagon(), nullptr);
  EXPECT_EQ(dialog.Hexagon()->Cells()->Count(), 270);  // initialised, then placed anew
  EXPECT_EQ(Form().RecordingSurfaceNamed("ColorHexagon1").ScaleWidth(), 239);
  EXPECT_EQ(Form().RecordingSurfaceNamed("ColorHexagon1").Listener(), dialog.Hexagon());
  // A 200 x 200 pixel frame: 4-pixel margins, the new colour above the current, in twips.
  EXPECT_EQ(Form().RecordingSurfaceNamed("picNew").CallsOf("Move").back().Args,
            (std::vector<std::int32_t>{60, 60, 192 * 15, 96 * 15}));
  EXPECT_EQ(Form().RecordingSurfaceNamed("picCurrent").CallsOf("Move").back().Args,
            (std::vector<std::int32_t>{60, 100 * 15, 192 * 15, 96 * 15}));
}

TEST_F(PopupFixture, SwatchHeightsHalveTowardsZero) {
  Form().RecordingSurfaceNamed("picColorBack").Move(0, 0, 151 * 15, 97 * 15);
  dialog.SetupColorBox();
  EXPECT_EQ(Form().RecordingSurfaceNamed("picCurrent").CallsOf("Move").back().Args,
            (std::vector<std::int32_t>{60, 48 * 15, 143 * 15, 44 * 15}));
}

TEST_F(PopupFixture, PropertiesAndHoneycombClicksReachTheCaptionTheSwatchesAndTheHexagon) {
  dialog.SetMoreColorsText("Other colours");
  dialog.SetCurrentColor(0x123456);
  dialog.SetAutoColor(0x00AA00);
  dialog.SetIsAutomatic(false);
  EXPECT_EQ(Form().Caption(), "Other colours");
  EXPECT_EQ(dialog.MoreColorsText(), "Other colours");
  // Leaving automatic paints the automatic colour as new and the colour as current.
  EXPECT_EQ(Swatch("picNew"), 0x00AA00);
  EXPECT_EQ(Swatch("picCurrent"), ColorHexagon::DefaultColor);
  dialog.SetColor(0xFFFFFF);
  EXPECT_EQ(dialog.Hexagon()->Color(), 0xFFFFFF);
  EXPECT_EQ(Swatch("picNew"), 0xFFFFFF);
  EXPECT_EQ(BoxText(), "Hex={FF,FF,FF}");
  dialog.SetIsAutomatic(true);
  EXPECT_EQ(Swatch("picNew"), 0x00AA00);
  EXPECT_EQ(Swatch("picCurrent"), 0x00AA00);
  // A click on the honeycomb's centre white leaves automatic and shows the new colour.
  Form().RecordingSurfaceNamed("ColorHexagon1").Click(116, 99);
  EXPECT_EQ(Swatch("picNew"), 0xFFFFFF);
  EXPECT_FALSE(dialog.IsAutomatic());
}

struct CloseCase {
  const char* name;
  std::function<void(TestForm&)> user;
  std::vector<Variant> result;
  friend void PrintTo(const CloseCase& c, std::ostream* os) { *os << c.name; }
};

class DialogOutcome : public PopupFixture, public ::testing::WithParamInterface<CloseCase> {
 protected:
  void SetUp() override {
    host.Windows.ScriptModal("frmPopup", GetParam().user);  // before the form loads
    PopupFixture::SetUp();
  }
};

TEST_P(DialogOutcome, WritesPopupResultAndDropsTheSharedDialog) {
  dialog.SetIsAutomatic(false);
  dialog.SetColor(0xFFFFFF);
  host.Runtime.ResetPopupResult();
  dialog.Show();
  EXPECT_EQ(host.Runtime.PopupResult(), GetParam().result);
  EXPECT_FALSE(Form().ModalLeftOpen);
  EXPECT_EQ(host.Runtime.SharedForm<frmPopup>(), nullptr);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, DialogOutcome,
    ::testing::Values(
        CloseCase{"Ok", [](TestForm& f) { f.ClickControl("cmdButton", 0); },
                  {Variant(true), Variant(0xFFFFFF), Variant(false), Variant(""), Variant()}},
        CloseCase{"Cancel", [](TestForm& f) { f.ClickControl("cmdButton", 1); },
                  {Variant(false), Variant(), Variant(), Variant(), Variant()}},
        CloseCase{"TitleBar", [](TestForm& f) { f.CloseFromTitleBar(); }, {Variant(false), Variant()}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PopupFixture, CustomTakesTheChoosersColourThroughTheHexagonAndACancelChangesNothing) {
  dialog.SetIsAutomatic(false);
  dialog.SetColor(0xFFFFFF);
  host.Chooser.NextChoice.reset();
  Form().ClickControl("cmdCustom");
  EXPECT_TRUE(host.Chooser.CancelError());
  EXPECT_EQ(dialog.Color(), 0xFFFFFF);
  EXPECT_TRUE(host.Messages.Shown.empty());
  host.Chooser.NextChoice = RGB(0xFF, 0, 0);
  Form().ClickControl("cmdSelect");  // idle: nothing happens
  Form().ClickControl("cmdCustom");
  EXPECT_EQ(host.Chooser.Shows, 2);
  EXPECT_EQ(dialog.Color(), RGB(0xFF, 0, 0));
  EXPECT_EQ(Swatch("picNew"), RGB(0xFF, 0, 0));
  EXPECT_EQ(BoxText(), "Hex={FF,00,00}");
}

}  // namespace
}  // namespace lumo
