#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "PopupFixture.h"

namespace lumo {
namespace {

using testing::PopupFixture;
using testing::TestForm;

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
