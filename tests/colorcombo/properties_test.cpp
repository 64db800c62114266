#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>

#include "ComboHarness.h"
#include "colormodel/Enums.h"

namespace lumo {
namespace {

using testing::ComboHarness;
using testing::Lines;
using testing::MemoryPropertyBag;

TEST_F(ComboHarness, NewControlShowsTheAutomaticColourUnderTheHostsNameAndFont) {
  site.DisplayName = "ColorCombo1";
  site.Font = StdFont{"Tahoma", 9};
  combo->UserControl_InitProperties();
  EXPECT_EQ(std::tuple(combo->Caption(), surface.Font(), combo->Color(), combo->IsAutomatic()),
            std::tuple("ColorCombo1", site.Font, 0x663300, true));
  EXPECT_EQ(surface.CallsOf("Rectangle").back().FillColor, sys::ButtonShadow);  // the automatic colour
  ASSERT_NE(combo->EventPass(), nullptr);
  EXPECT_NE(combo->EventPass()->Listener(), nullptr);
}

// Each setter notifies once under its own label, the irregular "Color" and
// "Forecolor [Let]" included; the focus mark is no persisted property.
TEST_F(ComboHarness, SettersNotifyTheHostUnderTheirOwnLabels) {
  combo->SetColor(1);
  combo->SetForeColor(1);
  combo->SetFont(StdFont{"Arial", 12});
  combo->SetAllowAutomatic(false);
  combo->SetHasFocus(true);
  EXPECT_EQ(site.Changed, (Lines{"Color", "Forecolor [Let]", "Font [Set]", "AllowAutomatic [Let]"}));
}

TEST_F(ComboHarness, AutomaticNeedsAllowAutomaticAndOnlyPickStyleIsKeptInRange) {
  combo->SetAllowAutomatic(false);
  EXPECT_FALSE(combo->IsAutomatic());
  combo->SetIsAutomatic(true);
  EXPECT_FALSE(combo->IsAutomatic());
  for (const std::int32_t style : {15, -1}) {
    combo->SetPickStyle(cpsPalette40);
    combo->SetPickStyle(style);
    EXPECT_EQ(combo->PickStyle(), cpsStandard) << style;
  }
  combo->SetStyle(7);
  combo->SetOpenEffect(9);
  EXPECT_EQ(std::pair(combo->Style(), combo->OpenEffect()), std::pair(7, 9));
}

// Loaded into a second control and written again, every property comes back.
TEST_F(ComboHarness, PersistenceRoundTripKeepsEveryPropertyUnderTheForecolorKey) {
  combo->SetAllowHotTracking(false);
  combo->SetAllowAutoColorBox(false);
  combo->SetCaption("&Ink");
  combo->SetStyle(cscButton);
  combo->SetOpenEffect(oecUnfold);
  combo->SetPickStyle(cpsPalette48);
  combo->SetEnabled(false);
  combo->SetAutomaticText("Auto");
  combo->SetMoreColorsText("More");
  combo->SetIsAutomatic(false);
  combo->SetAutoColor(0x11);
  combo->SetColor(0x22);
  combo->SetForeColor(0x33);
  combo->SetBackColor(0x44);
  combo->SetFont(StdFont{"Arial", 12});
  combo->SetAllowMoreColors(false);
  MemoryPropertyBag bag, again;
  combo->UserControl_WriteProperties(bag);
  EXPECT_EQ(std::pair(bag.Values.count("Forecolor"), bag.Values.count("ForeColor")), std::pair(1ul, 0ul));
  EXPECT_EQ(bag.Values.size(), 16u);  // all but AllowAutomatic, left at its default

  testing::RecordingSurface otherSurface;
  testing::RecordingSite otherSite;
  ColorCombo loaded(host.Runtime, otherSurface, otherSite, *this);
  loaded.UserControl_ReadProperties(bag);
  loaded.UserControl_WriteProperties(again);
  EXPECT_EQ(again.Values, bag.Values);
  EXPECT_EQ(bag.ReadOrder, bag.WriteOrder);
  EXPECT_EQ(otherSite.AccessKeys, "I");
}

TEST_F(ComboHarness, LoadingTakesStoredValuesAsTheyAreAndDefaultsForTheRest) {
  MemoryPropertyBag bag;
  bag.Values = {{"PickStyle", Variant(99)},
                {"AllowAutomatic", Variant(false)},
                {"IsAutomatic", Variant(true)}};
  site.Font = StdFont{"Tahoma", 9};
  combo->UserControl_ReadProperties(bag);
  EXPECT_EQ(std::tuple(combo->PickStyle(), combo->IsAutomatic(), combo->AllowAutomatic(), combo->Color()),
            std::tuple(99, true, false, 0x663300));
  EXPECT_EQ(std::pair(combo->Caption(), combo->Font()), std::pair(std::string(), site.Font));
  EXPECT_TRUE(host.Messages.Shown.empty());
}

// --- reported failures ------------------------------------------------------------------------------

struct Failure {
  const char* name;
  double lineHeight;
  std::int32_t surfaceWidth;
  std::int32_t style;
  Lines reported;
};
void PrintTo(const Failure& f, std::ostream* os) { *os << f.name; }

class Failures : public ComboHarness, public ::testing::WithParamInterface<Failure> {};

// A failing step reports under its own procedure, a failure of the redraw's own
// arithmetic under "Refresh"; the setter that started it still notifies.
TEST_P(Failures, AreReportedUnderTheProcedureThatFailed) {
  const Failure& f = GetParam();
  testing::RecordingSurface odd(f.surfaceWidth, 21);
  odd.LineHeight = f.lineHeight;
  testing::RecordingSite oddSite;
  ColorCombo control(host.Runtime, odd, oddSite, *this);
  control.SetStyle(f.style);
  EXPECT_EQ(Reported(), f.reported);
  EXPECT_EQ(oddSite.Changed, Lines{"Style [Let]"});
  for (const auto& m : host.Messages.Shown) EXPECT_NE(m.Prompt.find("Module: LumoDropdown"), std::string::npos);
}

constexpr std::int32_t kNarrowest = std::numeric_limits<std::int32_t>::min() + 5;

INSTANTIATE_TEST_SUITE_P(Representative, Failures,
                         ::testing::Values(Failure{"TextTooTall", 3e9, 120, 5, {"GetHeight"}},
                                           Failure{"ButtonOffTheSurface", 13, kNarrowest, cscDropDown, {"Refresh"}},
                                           Failure{"BarOffTheSurface", 13, kNarrowest, 5, {"DrawColorBar"}}),
                         [](const auto& info) { return std::string(info.param.name); });

// --- input ------------------------------------------------------------------------------------------------

struct Key {
  std::int16_t code;
  std::int16_t shift;
  bool opens;
};
void PrintTo(const Key& k, std::ostream* os) { *os << k.code << "+" << k.shift; }

class Keys : public ComboHarness, public ::testing::WithParamInterface<Key> {};

TEST_P(Keys, ArrowsAndF4OpenTheDropDownWhateverTheShiftState) {
  CancelIn = "BeforeDropDown";
  surface.Key(GetParam().code, GetParam().shift);
  EXPECT_EQ(Log, GetParam().opens ? Lines{"BeforeDropDown"} : Lines{});
}

INSTANTIATE_TEST_SUITE_P(OnTheClosedControl, Keys,
                         ::testing::Values(Key{keycode::Down, 0, true}, Key{keycode::Down, shift::Alt, true},
                                           Key{keycode::Up, shift::Ctrl, true}, Key{keycode::Left, 0, true},
                                           Key{keycode::Right, shift::Shift, true}, Key{keycode::F4, 0, true},
                                           Key{keycode::Enter, 0, false}, Key{keycode::Escape, 0, false},
                                           Key{32, 0, false}));

TEST_F(ComboHarness, AReleaseAfterAPressOnTheFieldOrTheAccessKeyOpensIt) {
  CancelIn = "BeforeDropDown";
  surface.MouseUp(5, 5);
  EXPECT_TRUE(Log.empty());
  surface.MouseDown(5, 5, mouse::Right);
  surface.MouseUp(500, 5, mouse::Right);
  surface.MouseUp(5, 5);
  surface.DoubleClick();
  combo->UserControl_AccessKeyPress('I');
  EXPECT_EQ(Log, (Lines{"BeforeDropDown", "DblClick", "BeforeDropDown"}));
}

TEST_F(ComboHarness, DestroyedControlLeavesTheRelaySurfaceAndSiteFree) {
  combo->AboutBox();
  EXPECT_EQ(host.Windows.AboutBoxOwners, std::vector<WindowHandle>{site.hWnd()});
  const auto relay = combo->EventPass();
  combo.reset();
  EXPECT_EQ(std::tuple(relay->Listener(), surface.Listener(), site.Control()),
            std::tuple(nullptr, nullptr, nullptr));
}

}  // namespace
}  // namespace lumo
