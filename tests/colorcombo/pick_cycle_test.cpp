#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "ComboHarness.h"
#include "colormodel/Enums.h"
#include "colormodel/FormWindow.h"

namespace lumo {
namespace {

using testing::ComboHarness;
using testing::Dropdown;
using testing::Lines;
using testing::TestForm;
using testing::User;
using testing::kBlack, testing::kGreen, testing::kWhite, testing::kGreenColor, testing::kWhiteColor;

const User kPickGreen = [](Dropdown& d) { d.Pick(kGreen); };
const Lines kNoChange{"BeforeDropDown", "AfterDropUp"};

// --- each way through the drop-down cycle ---------------------------------------------------

struct Cycle {
  const char* name;
  bool startAutomatic;
  OLE_COLOR startColor;
  User user;  // acts on the open drop-down, after white is previewed when `preview`
  bool preview;
  std::string cancelIn;
  Lines events;
  bool endAutomatic;
  OLE_COLOR endColor;
};
void PrintTo(const Cycle& c, std::ostream* os) { *os << c.name; }

class Cycles : public ComboHarness, public ::testing::WithParamInterface<Cycle> {};

// A cancel in BeforeDropDown shows nothing; one in a later Before event leaves the
// button drawn pressed, on purpose. Every way of closing puts back the preview.
TEST_P(Cycles, RaiseTheirEventsInOrderAndLeaveTheirColour) {
  const Cycle& c = GetParam();
  combo->SetIsAutomatic(c.startAutomatic);
  combo->SetColor(c.startColor);
  CancelIn = c.cancelIn;
  host.Chooser.NextChoice = 0xFF;  // for the dialog's Custom button
  Open([&c](Dropdown& d) {
    if (c.preview) d.Hover(kWhite);
    c.user(d);
  });
  EXPECT_EQ(Log, c.events);
  EXPECT_EQ(combo->IsAutomatic(), c.endAutomatic);
  EXPECT_EQ(text::Hex(combo->Color()), text::Hex(c.endColor));
  EXPECT_EQ(combo->DropButtonPressed(), c.cancelIn.find("Changed") != std::string::npos);
  EXPECT_EQ(LastDropdown() == nullptr, c.cancelIn == "BeforeDropDown");
  if (LastDropdown() != nullptr) { EXPECT_FALSE(LastDropdown()->ModalLeftOpen); }
  EXPECT_EQ(Shared(), nullptr);
  EXPECT_EQ(host.Windows.Capture, 0u);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

// The More Colors dialog runs over the drop-down, which stays open while the dialog
// has the activation.
User MoreColors(std::function<void(TestForm&)> dialogUser) {
  return [dialogUser](Dropdown& d) {
    d.host.Windows.ScriptModal("frmPopup", [&d, dialogUser](TestForm& dialog) {
      d.form.Deactivate();
      EXPECT_TRUE(d.form.IsLoaded());
      dialogUser(dialog);
    });
    d.Press(d.MoreColors());
  };
}

constexpr OLE_COLOR kBrown = 0x663300;
const Lines kPickedGreen{"BeforeDropDown", "BeforeColorChanged 8200", "AfterColorChanged 8200", "AfterDropUp"};

INSTANTIATE_TEST_SUITE_P(
    EachWay, Cycles,
    ::testing::Values(
        Cycle{"NewColourWhileAutomatic", true, kBrown, kPickGreen, false, "",
              {"BeforeDropDown", "BeforeIsAutomaticChanged False", "AfterIsAutomaticChanged False",
               "BeforeColorChanged 8200", "AfterColorChanged 8200", "AfterDropUp"},
              false, kGreenColor},
        Cycle{"NewColourAfterAPreview", false, kBrown, kPickGreen, true, "", kPickedGreen, false, kGreenColor},
        Cycle{"AutomaticWhileAColourIsInForce", false, kGreenColor, [](Dropdown& d) { d.Press(d.Automatic()); },
              false, "", {"BeforeDropDown", "BeforeIsAutomaticChanged True", "AfterIsAutomaticChanged True", "AfterDropUp"},
              true, kGreenColor},
        Cycle{"TheColourAlreadyInForce", false, kGreenColor, kPickGreen, false, "", kNoChange, false, kGreenColor},
        // Released over green without moving there first.
        Cycle{"OneThatOnlyUndoesAPreview", false, kGreenColor, kPickGreen, true, "",
              {"BeforeDropDown", "BeforeColorChanged 8200", "AfterDropUp"}, false, kGreenColor},
        Cycle{"CancelledBeforeDropDown", true, kBrown, kPickGreen, false, "BeforeDropDown", {"BeforeDropDown"}, true,
              kBrown},
        Cycle{"CancelledBeforeIsAutomaticChanged", true, kBrown, kPickGreen, false, "BeforeIsAutomaticChanged",
              {"BeforeDropDown", "BeforeIsAutomaticChanged False"}, true, kBrown},
        Cycle{"CancelledBeforeColorChanged", false, kBrown, kPickGreen, false, "BeforeColorChanged",
              {"BeforeDropDown", "BeforeColorChanged 8200"}, false, kBrown},
        Cycle{"Escape", false, kGreenColor, [](Dropdown& d) { d.grid.Key(keycode::Escape); }, true, "", kNoChange,
              false, kGreenColor},
        Cycle{"F4", false, kGreenColor, [](Dropdown& d) { d.form.PressKey(keycode::F4); }, true, "", kNoChange, false,
              kGreenColor},
        Cycle{"Deactivation", false, kGreenColor, [](Dropdown& d) { d.form.Deactivate(); }, true, "", kNoChange, false,
              kGreenColor},
        Cycle{"ActivationWatch", false, kGreenColor,
              [](Dropdown& d) {
                d.host.Windows.ActiveWindow = d.form.hWnd();
                d.host.Timers.FireEnabled();
                EXPECT_TRUE(d.form.IsLoaded());
                d.host.Windows.ActiveWindow = 0x77;  // another application's window
                d.host.Timers.FireEnabled();
              },
              true, "", kNoChange, false, kGreenColor},
        Cycle{"MoreColorsOk", false, kGreenColor,
              MoreColors([](TestForm& dialog) {
                dialog.ClickControl("cmdCustom");
                dialog.ClickControl("cmdButton", 0);
              }),
              true, "", {"BeforeDropDown", "BeforeColorChanged FF", "AfterColorChanged FF", "AfterDropUp"}, false, 0xFF},
        Cycle{"MoreColorsCancel", false, kGreenColor,
              MoreColors([](TestForm& dialog) { dialog.ClickControl("cmdButton", 1); }), true, "", kNoChange, false,
              kGreenColor}),
    [](const auto& info) { return std::string(info.param.name); });

// A cancel on the grid's focus loss writes no record: the previous cycle's is applied
// again, and a record that was never filled is a reported failure.
TEST_F(ComboHarness, FocusLossReappliesThePreviousRecord) {
  Open([](Dropdown& d) { d.grid.LoseFocus(); });
  EXPECT_EQ(Reported(), Lines{"PressButton"});
  EXPECT_EQ(host.Messages.Shown.at(0).Prompt.rfind("Error Number: 9\r\nModule: LumoDropdown", 0), 0u);
  EXPECT_EQ(Log, Lines{"BeforeDropDown"});

  Open(kPickGreen);
  combo->SetColor(kWhiteColor);
  Log.clear();
  Open([](Dropdown& d) { d.grid.LoseFocus(); });
  EXPECT_EQ(Log, (Lines{"BeforeDropDown", "BeforeColorChanged 8200", "AfterColorChanged 8200", "AfterDropUp"}));
  EXPECT_EQ(combo->LastColorName(), "Green");
}

// The grid of the next drop-down carries the last pick's name, so an Automatic pick there
// passes it on instead of an empty name.
TEST_F(ComboHarness, TheLastPicksNameTravelsThroughAnAutomaticPick) {
  Open(kPickGreen);
  Open([](Dropdown& d) {
    EXPECT_EQ(d.box.ColorName(), "Green");
    d.Press(d.Automatic());
  });
  EXPECT_EQ(host.Runtime.PopupResultAt(3).ToText(), "Green");
}

// --- hot tracking ----------------------------------------------------------------------------

class HotTracking : public ComboHarness, public ::testing::WithParamInterface<bool> {};

TEST_P(HotTracking, PreviewsSilentlyAndPutsOnlyTheColourBack) {
  const bool on = GetParam();
  combo->SetAllowHotTracking(on);
  combo->SetIsAutomatic(false);
  combo->SetColor(kGreenColor);
  Open([&](Dropdown& d) {
    d.Hover(kWhite);
    EXPECT_EQ(combo->Color(), on ? kWhiteColor : kGreenColor);
    d.Hover(d.Automatic());
    EXPECT_EQ(combo->IsAutomatic(), on);
    d.Hover(kBlack);
    EXPECT_EQ(combo->Color(), on ? 0 : kGreenColor);
    EXPECT_FALSE(combo->IsAutomatic());
    d.Hover(d.Automatic());
    EXPECT_EQ(Log, Lines{"BeforeDropDown"});
    d.grid.Key(keycode::Escape);
  });
  EXPECT_EQ(Log, kNoChange);
  EXPECT_EQ(combo->Color(), kGreenColor);
  EXPECT_EQ(combo->IsAutomatic(), on);  // kept on purpose: a previewed automatic state stays
}

INSTANTIATE_TEST_SUITE_P(OnAndOff, HotTracking, ::testing::Bool());

// --- placing and opening the window -------------------------------------------------------------

// The effect, whether the screen ends below the field, and the round of the growth in
// which a click elsewhere ends it (0: none).
class Opening : public ComboHarness,
                public ::testing::WithParamInterface<std::tuple<OpenEffectConstants, bool, std::int32_t>> {};

// Without an effect the window opens under the field, or above its lower edge where the
// screen ends. The slide keeps its full width and grows down, the unfold grows both
// ways, in a hundred painted rounds; all end at exactly the size laid out.
TEST_P(Opening, PlacesTheWindowAndGrowsItToItsFullSize) {
  const auto [effect, nearBottom, endAt] = GetParam();
  const std::int32_t top = (400 + combo->GetHeight() - 1) * TwipsPerPixel;
  if (nearBottom) host.Windows.ScreenHeightTwips = top + 1000;
  combo->SetOpenEffect(effect);
  combo->SetPickStyle(cpsPalette40);
  std::vector<std::int32_t> widths, heights;
  host.Windows.OnDoEvents = [&] {
    widths.push_back(LastDropdown()->Width());
    heights.push_back(LastDropdown()->Height());
    if (std::ssize(widths) == endAt) LastDropdown()->Deactivate();
  };
  Open([&](Dropdown& d) {
    const ControlSite& box = d.form.Site("ColorBox1");
    EXPECT_EQ(d.box.PickStyle(), cpsPalette40);
    EXPECT_EQ(d.form.Width(), box.Width() + 2 * TestForm::BorderTwips);
    EXPECT_EQ(d.form.Height(), box.Height() + 2 * TestForm::BorderTwips);
    EXPECT_EQ(d.form.Left(), 300 * TwipsPerPixel);
    EXPECT_EQ(d.form.Top(), nearBottom ? top - d.form.Height() : top);
    combo->UserControl_KeyDown(keycode::Down, 0);  // no second drop-down while one is open
    EXPECT_EQ(Log, Lines{"BeforeDropDown"});
    d.form.Deactivate();
  });
  EXPECT_EQ(Log, kNoChange);
  EXPECT_EQ(widths.size(), effect == oecNone ? 0u : endAt > 0 ? std::size_t(endAt) : 100u);
  if (widths.empty()) return;
  EXPECT_LT(heights.front(), heights.back());
  EXPECT_EQ(widths.front() < widths.back(), effect == oecUnfold);
}

INSTANTIATE_TEST_SUITE_P(EffectsAndScreenEdge, Opening,
                         ::testing::Values(std::tuple{oecNone, false, 0}, std::tuple{oecNone, true, 0},
                                           std::tuple{oecSlide, false, 0}, std::tuple{oecUnfold, false, 0},
                                           std::tuple{oecUnfold, false, 10}));

// --- the host destroys the control mid-cycle ---------------------------------------------------

class Destroyed : public ComboHarness, public ::testing::WithParamInterface<const char*> {};

// A new colour picked while automatic raises all four Before/After events.
TEST_P(Destroyed, EndsTheCycleQuietly) {
  const std::string where = GetParam();
  if (where != "modal") DeleteIn = where;
  Open([&](Dropdown& d) {
    if (where == "modal") {
      combo.reset();
      d.Hover(kBlack);  // the relay outlives the control and reaches nobody
    }
    d.Pick(kGreen);
  });
  EXPECT_EQ(combo, nullptr);
  EXPECT_EQ(Log.back().substr(0, Log.back().find(' ')), where == "modal" ? "BeforeDropDown" : where);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(InEachHandlerAndWhileOpen, Destroyed,
                         ::testing::Values("BeforeDropDown", "BeforeIsAutomaticChanged", "AfterIsAutomaticChanged",
                                           "BeforeColorChanged", "AfterColorChanged", "modal"));

}  // namespace
}  // namespace lumo
