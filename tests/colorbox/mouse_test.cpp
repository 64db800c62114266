#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ColorBoxHarness.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::Lines;

class ColorBoxPointer : public ColorBoxHarness {};

// A cell needs only the release over it; the two buttons need press and release.
TEST_F(ColorBoxPointer, PressAndReleaseDecideWhatIsChosen) {
  const Point automatic = Centre(box->AutoRect()), more = Centre(box->MoreRect()), green = CellCentre(3);
  const Point gap{CellCentre(1).X + 9, CellCentre(1).Y}, outside{-4, surface.ScaleHeight() + 5};
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
               {green, outside, mouse::Left, {"UserCancel"}, true},
               {outside, outside, mouse::Left, {"UserCancel", "UserCancel"}, true},
               {green, green, mouse::Right, {}, false},
               {green, outside, mouse::Right, {"UserCancel"}, true}};
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
  ClickAt(CellCentre(14));
  EXPECT_EQ(box->Color(), RGB(255, 0, 0));
  EXPECT_EQ(box->ColorName(), "Red");
  EXPECT_FALSE(box->IsAutomatic());
  ClickAt(Centre(box->AutoRect()));
  EXPECT_TRUE(box->IsAutomatic());
  EXPECT_EQ(box->Color(), RGB(255, 0, 0));
  EXPECT_EQ(box->ColorName(), "Red");  // Automatic does not touch the name
  ClickAt({CellCentre(1).X + 9, CellCentre(1).Y});
  EXPECT_EQ(box->ColorName(), "");  // a release over nothing still forgets the name
}

TEST_F(ColorBoxPointer, HoverMakesACellHotOnceAndLeavingItRepaintsItPlain) {
  MoveTo(CellCentre(3));
  MoveTo({CellCentre(3).X + 1, CellCentre(3).Y});
  EXPECT_EQ(Log, (Lines{"OverColor 8200"}));
  EXPECT_EQ(surface.ToolTipText(), "Green");
  EXPECT_EQ(box->HotIndex(), 3);
  EXPECT_EQ(box->FocusZone(), focuszone::Grid);
  surface.ClearCalls();
  MoveTo(Centre(box->AutoRect()));
  EXPECT_EQ(Log, (Lines{"OverColor 8200", "OverColor 0 auto"}));
  EXPECT_EQ(box->FocusZone(), focuszone::Automatic);
  EXPECT_EQ(box->HotCell(), nullptr);
  EXPECT_EQ(surface.ToolTipText(), "");
  EXPECT_EQ(surface.CountOf("DrawEdge"), 0);
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
