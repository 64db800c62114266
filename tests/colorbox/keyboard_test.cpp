#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ColorBoxHarness.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::Lines;

class ColorBoxKeys : public ColorBoxHarness {
 protected:
  // Puts the keyboard focus in a zone (on cell `index` for the grid) the way the pointer does.
  void Focus(std::int32_t zone, std::int32_t index = 0) {
    if (zone == focuszone::Automatic) MoveTo(Centre(box->AutoRect()));
    if (zone == focuszone::Grid) MoveTo(CellCentre(index));
    if (zone == focuszone::MoreColors) MoveTo(Centre(box->MoreRect()));
    ASSERT_EQ(box->FocusZone(), zone);
    Log.clear();
    surface.ClearCalls();
  }
};

struct Move {
  std::int32_t style, zone, index;
  std::int16_t key;
  std::int32_t toZone, toIndex;  // toIndex: the hot cell when the move ends in the grid
};
void PrintTo(const Move& m, std::ostream* os) { *os << m.style << " " << m.zone << "/" << m.index << " " << m.key; }

class ColorBoxKeyMoves : public ColorBoxKeys, public ::testing::WithParamInterface<Move> {};

TEST_P(ColorBoxKeyMoves, ArrowMovesTheFocusAndWrapsThroughBothButtons) {
  const Move& m = GetParam();
  box->SetPickStyle(m.style);
  Focus(m.zone, m.index);
  surface.Key(m.key);
  EXPECT_EQ(box->FocusZone(), m.toZone);
  if (m.toZone == focuszone::Grid) {
    EXPECT_EQ(box->HotIndex(), m.toIndex);
    EXPECT_EQ(box->HotCell(), box->Cells()->Item(m.toIndex));
  }
  EXPECT_EQ(box->AutoHot(), m.toZone == focuszone::Automatic);
  EXPECT_EQ(surface.Calls.back().Op, "Refresh");  // shown after every key, handled or not
}

constexpr auto Std = cpsStandard;
constexpr auto Big = cpsPalette256WithBW;  // 272 cells in rows of 16
constexpr std::int16_t R = keycode::Right, L = keycode::Left, U = keycode::Up, D = keycode::Down;

INSTANTIATE_TEST_SUITE_P(
    FromEveryZone, ColorBoxKeyMoves,
    ::testing::Values(Move{Std, 2, 16, R, 3, 0}, Move{Std, 2, 9, D, 3, 0}, Move{Std, 2, 16, D, 3, 0},
                      Move{Std, 2, 1, U, 1, 0}, Move{Std, 2, 8, U, 1, 0}, Move{Std, 2, 1, L, 1, 0},
                      Move{Std, 2, 5, R, 2, 6}, Move{Std, 2, 5, L, 2, 4}, Move{Std, 2, 5, D, 2, 13},
                      Move{Std, 2, 13, U, 2, 5}, Move{Std, 2, 5, 65, 2, 5}, Move{Std, 1, 0, R, 2, 1},
                      Move{Std, 1, 0, D, 2, 1}, Move{Std, 1, 0, L, 3, 0}, Move{Std, 1, 0, U, 3, 0},
                      Move{Std, 3, 0, R, 1, 0}, Move{Std, 3, 0, D, 1, 0}, Move{Std, 3, 0, L, 2, 16},
                      Move{Std, 3, 0, U, 2, 16}, Move{Big, 2, 272, R, 3, 0}, Move{Big, 2, 257, U, 2, 241},
                      Move{Big, 2, 260, D, 3, 0}, Move{Big, 3, 0, L, 2, 272}));

TEST_F(ColorBoxKeys, EnterChoosesWhatHasTheFocusAndEscapeMarksThePickNotCommitted) {
  struct Case {
    std::int32_t zone, index;
    std::int16_t key;
    const char* event;
  };
  for (const Case c : {Case{1, 0, keycode::Enter, "Click 663300  auto"}, Case{2, 3, keycode::Enter, "Click 8200 Green"},
                       Case{3, 0, keycode::Enter, "MoreColorClick"}, Case{2, 4, keycode::Escape, "UserCancel"}}) {
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
  const auto lastFrameOf = [&](std::int32_t index) {
    const auto cell = box->Cells()->Item(index);
    const Rect area{cell->BoundLeft() - 3, cell->BoundTop() - 3, cell->BoundLeft() + 15, cell->BoundTop() + 15};
    std::string last;
    for (const auto& call : surface.Calls) {
      if (call.Args.size() >= 4 && Rect{call.Args[0], call.Args[1], call.Args[2], call.Args[3]} == area) {
        last = call.Op == "DrawEdge" ? "raised" : "erased";
      }
    }
    return last;
  };
  EXPECT_EQ(lastFrameOf(1), "erased");
  EXPECT_EQ(lastFrameOf(2), "erased");
  EXPECT_EQ(lastFrameOf(3), "raised");
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
  ASSERT_EQ(Messages().size(), 4u);  // the collection's own reports, then ours
  EXPECT_EQ(Messages()[1], "Error Number: 91\r\nModule: ColorBox\r\nProcedure: DrawButton\r\n\r\nObject not set\r\n");
  EXPECT_EQ(Messages()[3],
            "Error Number: 91\r\nModule: ColorBox\r\nProcedure: picScreen_KeyDown\r\n\r\nObject not set\r\n");
  EXPECT_TRUE(Log.empty());
}

}  // namespace
}  // namespace lumo
