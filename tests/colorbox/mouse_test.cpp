#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ColorBoxHarness.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::Lines;

enum class Spot { Automatic, MoreColors, Green, Gap, Outside };

struct PressRelease {
  const char* name;
  Spot press, release;
  std::int16_t button;
  Lines events;
  bool cancelled;  // PopupResult left as one false entry
};
void PrintTo(const PressRelease& c, std::ostream* os) { *os << c.name; }

class ColorBoxMouse : public ColorBoxHarness, public ::testing::WithParamInterface<PressRelease> {
 protected:
  Point At(Spot spot) const {
    switch (spot) {
      case Spot::Automatic: return Centre(box->AutoRect());
      case Spot::MoreColors: return Centre(box->MoreRect());
      case Spot::Green: return CellCentre(3);  // 008200 "Green"
      case Spot::Gap: return {CellCentre(1).X + 9, CellCentre(1).Y};
      case Spot::Outside: return {-4, surface.ScaleHeight() + 5};
    }
    return {};
  }
};

// A cell needs only the release over it; the two buttons need press and release.
TEST_P(ColorBoxMouse, PressAndReleaseDecideWhatIsChosen) {
  const PressRelease& c = GetParam();
  host.Runtime.ReDimPopupResult(4);
  surface.MouseDown(At(c.press).X, At(c.press).Y, c.button);
  surface.MouseUp(At(c.release).X, At(c.release).Y, c.button);
  EXPECT_EQ(Log, c.events);
  const std::vector<Variant> untouched(4), cancelled{Variant(false)};
  EXPECT_EQ(host.Runtime.PopupResult(), c.cancelled ? cancelled : untouched);
}

INSTANTIATE_TEST_SUITE_P(
    LeftAndRightButton, ColorBoxMouse,
    ::testing::Values(
        PressRelease{"AutomaticToAutomatic", Spot::Automatic, Spot::Automatic, mouse::Left, {"Click 663300  auto"}, false},
        PressRelease{"CellToCell", Spot::Green, Spot::Green, mouse::Left, {"Click 8200 Green"}, false},
        PressRelease{"AutomaticToCell", Spot::Automatic, Spot::Green, mouse::Left, {"Click 8200 Green"}, false},
        PressRelease{"CellToAutomatic", Spot::Green, Spot::Automatic, mouse::Left, {}, false},
        PressRelease{"MoreToMore", Spot::MoreColors, Spot::MoreColors, mouse::Left, {"MoreColorClick"}, false},
        PressRelease{"CellToMore", Spot::Green, Spot::MoreColors, mouse::Left, {}, false},
        PressRelease{"GapToGap", Spot::Gap, Spot::Gap, mouse::Left, {}, false},
        PressRelease{"CellToOutside", Spot::Green, Spot::Outside, mouse::Left, {"UserCancel"}, true},
        PressRelease{"OutsideToOutside", Spot::Outside, Spot::Outside, mouse::Left, {"UserCancel", "UserCancel"}, true},
        PressRelease{"RightOnCell", Spot::Green, Spot::Green, mouse::Right, {}, false},
        PressRelease{"RightToOutside", Spot::Green, Spot::Outside, mouse::Right, {"UserCancel"}, true}),
    [](const auto& info) { return std::string(info.param.name); });

class ColorBoxPointer : public ColorBoxHarness {};

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

TEST_F(ColorBoxPointer, UnnamedCellsAreNamedAfterTheirColourForTipAndColorName) {
  box->SetPickStyle(cpsPalette48);
  const auto pink = box->Cells()->GetObjectByColor(RGB(0xFF, 0x82, 0x84));
  EXPECT_EQ(pink->Name(), "#FF8284 (FF,82,84)");
  MoveTo(CellCentre(pink->Index()));
  EXPECT_EQ(surface.ToolTipText(), "#FF8284 (FF,82,84)");
  ClickAt(CellCentre(pink->Index()));
  EXPECT_EQ(box->ColorName(), "#FF8284 (FF,82,84)");
  EXPECT_EQ(box->Cells()->Item(1)->Name(), "White");
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
  const char* name;
  double rest;                   // seconds from the last move to the tick
  bool captured, onSurface, shown;
};
void PrintTo(const TipCase& c, std::ostream* os) { *os << c.name; }

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
                         ::testing::Values(TipCase{"Rested", 0.75, true, true, true},
                                           TipCase{"HalfASecondIsNotEnough", 0.5, true, true, false},
                                           TipCase{"NoCapture", 0.75, false, true, false},
                                           TipCase{"PointerOffTheSurface", 0.75, true, false, false}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace lumo
