#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "ColorBoxHarness.h"

// What the pointer and the keyboard choose, and how the control shows where they are.
namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::Lines;

class ColorBoxKeys : public ColorBoxHarness {};

TEST_F(ColorBoxKeys, ArrowsMoveTheFocusAndWrapThroughBothButtons) {
  constexpr auto Std = cpsStandard;
  constexpr auto Big = cpsPalette256WithBW;  // 272 cells in rows of 16
  constexpr std::int16_t R = keycode::Right, L = keycode::Left, U = keycode::Up, D = keycode::Down;
  const struct {
    std::int32_t style, zone, index;
    std::int16_t key;
    std::int32_t toZone, toIndex;  // toIndex: the hot cell when the move ends in the grid
  } moves[] = {{Std, 2, 16, R, 3, 0},  {Std, 2, 9, D, 3, 0},   {Std, 2, 16, D, 3, 0},  {Std, 2, 1, U, 1, 0},
               {Std, 2, 8, U, 1, 0},   {Std, 2, 1, L, 1, 0},   {Std, 2, 5, R, 2, 6},   {Std, 2, 5, L, 2, 4},
               {Std, 2, 5, D, 2, 13},  {Std, 2, 13, U, 2, 5},  {Std, 2, 5, 65, 2, 5},  {Std, 1, 0, R, 2, 1},
               {Std, 1, 0, D, 2, 1},   {Std, 1, 0, L, 3, 0},   {Std, 1, 0, U, 3, 0},   {Std, 3, 0, R, 1, 0},
               {Std, 3, 0, D, 1, 0},   {Std, 3, 0, L, 2, 16},  {Std, 3, 0, U, 2, 16},  {Big, 2, 272, R, 3, 0},
               {Std, 2, 8, D, 2, 16},  {Big, 2, 257, U, 2, 241}, {Big, 2, 260, D, 3, 0}, {Big, 3, 0, L, 2, 272}};
  for (const auto& m : moves) {
    SCOPED_TRACE(::testing::Message() << m.style << " " << m.zone << "/" << m.index << " key " << m.key);
    Recreate();
    box->SetPickStyle(m.style);
    Focus(m.zone, m.index);
    surface.Key(m.key);
    EXPECT_EQ(box->FocusZone(), m.toZone);
    if (m.toZone == focuszone::Grid) {
      EXPECT_EQ(box->HotIndex(), m.toIndex);
      EXPECT_EQ(box->HotCell(), box->Cells()->Item(m.toIndex));
    }
    EXPECT_EQ(box->AutoHot(), m.toZone == focuszone::Automatic);
    // Shown after every key, handled or not.
    EXPECT_EQ(surface.Calls.empty() ? "nothing" : surface.Calls.back().Op, "Refresh");
  }
}

TEST_F(ColorBoxKeys, EnterChoosesWhatHasTheFocusAndEscapeMarksThePickNotCommitted) {
  const struct {
    std::int32_t zone, index;
    std::int16_t key;
    const char* event;
  } cases[] = {{1, 0, keycode::Enter, "Click 663300  auto"},
               {2, 3, keycode::Enter, "Click 8200 Green"},
               {3, 0, keycode::Enter, "MoreColorClick"},
               {2, 4, keycode::Escape, "UserCancel"}};
  for (const auto& c : cases) {
    Focus(c.zone, c.index);
    host.Runtime.ReDimPopupResult(4);
    surface.Key(c.key);
    EXPECT_EQ(Log, (Lines{c.event}));
    EXPECT_EQ(host.Runtime.PopupResult().size(), c.key == keycode::Escape ? 1u : 4u);
  }
  EXPECT_EQ(host.Runtime.PopupResult(), (std::vector<Variant>{Variant(false)}));
}

TEST_F(ColorBoxKeys, MovingOnLeavesOnlyTheNewCellRaised) {
  Focus(focuszone::Grid, 1);
  surface.Key(keycode::Right);
  surface.Key(keycode::Right);
  const auto lastAt = [&](std::int32_t index) {
    const auto calls = CallsAt("", Frame(index));
    return calls.empty() ? std::string("nothing") : calls.back().Op;
  };
  EXPECT_EQ((Lines{lastAt(1), lastAt(2), lastAt(3)}), (Lines{"Rectangle", "Rectangle", "DrawEdge"}));
  EXPECT_EQ(box->HotIndex(), 3);
}

TEST_F(ColorBoxKeys, KeyboardEntersButtonsTheControlDoesNotOffer) {
  box->SetAllowAutomatic(false);
  box->SetAllowMoreColors(false);
  Focus(focuszone::Grid, 1);
  surface.Key(keycode::Left);
  EXPECT_EQ(box->FocusZone(), focuszone::Automatic);
  surface.Key(keycode::Enter);
  surface.Key(keycode::Left);
  EXPECT_EQ(box->FocusZone(), focuszone::MoreColors);
  surface.Key(keycode::Enter);
  EXPECT_EQ(Log, (Lines{"Click 663300  auto", "MoreColorClick"}));
  EXPECT_TRUE(surface.CallsOf("DrawTextA").empty());
}

TEST_F(ColorBoxKeys, HotIndexLeftOverFromALargerPaletteIsReportedNotThrown) {
  box->SetPickStyle(cpsPalette48);
  Focus(focuszone::Grid, 40);
  box->SetPickStyle(cpsStandard);  // the focus zone and hot index survive a Refresh
  surface.Key(keycode::Left);
  surface.Key(keycode::Enter);
  EXPECT_EQ(box->HotIndex(), 40);
  const std::string item = "Error Number: 9\r\nModule: CColorboxCol\r\nProcedure: Item\r\n\r\nIndex out of range\r\n";
  EXPECT_EQ(host.Messages.Prompts(),  // the collection's own report, then ours, for each key
            (Lines{item, "Error Number: 91\r\nModule: ColorBox\r\nProcedure: DrawButton\r\n\r\nObject not set\r\n", item,
                   "Error Number: 91\r\nModule: ColorBox\r\nProcedure: picScreen_KeyDown\r\n\r\nObject not set\r\n"}));
  EXPECT_TRUE(Log.empty());
}

class ColorBoxPointer : public ColorBoxHarness {};

// A cell needs only the release over it; the two buttons need press and release.
TEST_F(ColorBoxPointer, PressAndReleaseDecideWhatIsChosen) {
  const Point automatic = Centre(box->AutoRect()), more = Centre(box->MoreRect()), green = CellCentre(3);
  const Point gap{CellCentre(1).X + 9, CellCentre(1).Y}, outside{-4, surface.ScaleHeight() + 5};
  const Point above{green.X, -1}, below{green.X, surface.ScaleHeight() + 1}, beyond{surface.ScaleWidth() + 1, green.Y};
  const struct {
    Point press, release;
    std::int16_t button;
    Lines events;
    bool cancelled;  // PopupResult left as one false entry
  } cases[] = {{automatic, automatic, mouse::Left, {"Click 663300  auto"}, false},
               {green, green, mouse::Left, {"Click 8200 Green"}, false},
               {automatic, green, mouse::Left, {"Click 8200 Green"}, false},
               {green, automatic, mouse::Left, {}, false},
               {more, more, mouse::Left, {"MoreColorClick"}, false},
               {green, more, mouse::Left, {}, false},
               {gap, gap, mouse::Left, {}, false},
               {green, below, mouse::Left, {"UserCancel"}, true},
               {green, above, mouse::Left, {"UserCancel"}, true},
               {outside, outside, mouse::Left, {"UserCancel", "UserCancel"}, true},
               {green, green, mouse::Right, {}, false},
               {green, beyond, mouse::Right, {"UserCancel"}, true}};
  for (const auto& c : cases) {
    Recreate();
    Log.clear();
    host.Runtime.ReDimPopupResult(4);
    surface.MouseDown(c.press.X, c.press.Y, c.button);
    surface.MouseUp(c.release.X, c.release.Y, c.button);
    EXPECT_EQ(Log, c.events) << c.press.X << "," << c.press.Y << " to " << c.release.X << "," << c.release.Y;
    const std::vector<Variant> untouched(4), cancelled{Variant(false)};
    EXPECT_EQ(host.Runtime.PopupResult(), c.cancelled ? cancelled : untouched);
  }
}

TEST_F(ColorBoxPointer, ChoosingStoresTheCellAndTheClickHandlerOnlyGetsCopies) {
  WhileClick = [](OLE_COLOR& color, bool& automatic) { color = 1, automatic = !automatic; };
  const auto state = [&] { return std::tuple(box->Color(), box->ColorName(), box->IsAutomatic()); };
  ClickAt(CellCentre(14));
  EXPECT_EQ(state(), std::tuple(RGB(255, 0, 0), "Red", false));
  ClickAt(Centre(box->AutoRect()));
  EXPECT_EQ(state(), std::tuple(RGB(255, 0, 0), "Red", true));  // Automatic does not touch the name
  ClickAt({CellCentre(1).X + 9, CellCentre(1).Y});
  EXPECT_EQ(box->ColorName(), "");  // a release over nothing still forgets the name
}

TEST_F(ColorBoxPointer, HoverMakesACellHotOnceAndLeavingItRepaintsItPlain) {
  MoveTo(CellCentre(3));
  MoveTo({CellCentre(3).X + 1, CellCentre(3).Y});
  EXPECT_EQ(Log, (Lines{"OverColor 8200"}));
  EXPECT_EQ(std::tuple(surface.ToolTipText(), box->HotIndex(), box->FocusZone()),
            std::tuple("Green", 3, focuszone::Grid));
  surface.ClearCalls();
  MoveTo(Centre(box->AutoRect()));
  EXPECT_EQ(Log, (Lines{"OverColor 8200", "OverColor 0 auto"}));
  EXPECT_EQ(std::tuple(box->FocusZone(), box->HotCell(), surface.ToolTipText(), surface.CountOf("DrawEdge")),
            std::tuple(focuszone::Automatic, nullptr, "", 0));
  MoveTo(Centre(box->MoreRect()));
  EXPECT_EQ(box->FocusZone(), focuszone::MoreColors);
  EXPECT_EQ(Guarded, std::vector<bool>(Guarded.size(), true));
}

TEST_F(ColorBoxPointer, LosingFocusCancelsExceptWhileTheControlRaisesAnEvent) {
  WhileClick = [this](OLE_COLOR&, bool&) { surface.LoseFocus(); };
  ClickAt(CellCentre(3));
  EXPECT_EQ(Log, (Lines{"Click 8200 Green"}));
  surface.LoseFocus();
  EXPECT_EQ(Log, (Lines{"Click 8200 Green", "UserCancel"}));
}

TEST_F(ColorBoxPointer, ShowAndQuickMovesTakeTheCaptureForTheSurface) {
  box->UserControl_Show();
  box->UserControl_Show();  // already captured: not taken again
  EXPECT_EQ(host.Windows.CaptureCalls, (std::vector<WindowHandle>{surface.hWnd()}));
  host.Windows.CaptureCalls.clear();
  MoveTo(CellCentre(1));
  host.Clock.Advance(0.5);  // exactly half a second is rest enough: the time base moves on
  MoveTo(CellCentre(2));
  EXPECT_TRUE(host.Windows.CaptureCalls.empty());
  host.Clock.Advance(0.25);
  MoveTo(CellCentre(3));
  EXPECT_EQ(host.Windows.CaptureCalls, (std::vector<WindowHandle>{surface.hWnd()}));
  EXPECT_TRUE(box->Timer1().Enabled());
}

struct TipCase {
  double rest;  // seconds from the last move to the tick
  bool captured, onSurface, shown;
};

class ColorBoxToolTip : public ColorBoxHarness, public ::testing::WithParamInterface<TipCase> {};

TEST_P(ColorBoxToolTip, TimerReleasesTheCaptureAndReshowsTheTipAfterHalfASecondOfRest) {
  const TipCase& c = GetParam();
  MoveTo(c.onSurface ? CellCentre(2) : Point{-3, -3});
  host.Windows.Capture = c.captured ? surface.hWnd() : 0;
  const auto assignments = surface.ToolTipAssignments;
  host.Clock.Advance(c.rest);
  host.Timers.FireEnabled();
  EXPECT_EQ(host.Windows.ReleaseCalls, c.shown ? 1 : 0);
  EXPECT_EQ(box->Timer1().Enabled(), !c.shown);
  Lines expected = assignments;
  if (c.shown) expected.push_back(assignments.back());
  EXPECT_EQ(surface.ToolTipAssignments, expected);
  if (!c.shown) return;
  host.Windows.Capture = surface.hWnd();  // off now: nothing ticks until the pointer moves again
  host.Clock.Advance(1);
  EXPECT_EQ(host.Timers.FireEnabled(), 0);
}

INSTANTIATE_TEST_SUITE_P(RestCaptureAndPlace, ColorBoxToolTip,
                         ::testing::Values(TipCase{0.75, true, true, true}, TipCase{0.5, true, true, false},
                                           TipCase{0.75, false, true, false}, TipCase{0.75, true, false, false}));

}  // namespace
}  // namespace lumo
