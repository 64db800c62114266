#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ColorBoxHarness.h"

namespace lumo {
namespace {

using testing::Lines;

class ColorBoxKeys : public testing::ColorBoxHarness {};

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
               {Big, 2, 257, U, 2, 241}, {Big, 2, 260, D, 3, 0}, {Big, 3, 0, L, 2, 272}};
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
    EXPECT_EQ(surface.Calls.back().Op, "Refresh");  // shown after every key, handled or not
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
  const auto lastAt = [&](std::int32_t index) { return CallsAt("", Frame(index)).back().Op; };
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
  ASSERT_EQ(Messages().size(), 4u);  // the collection's own reports, then ours
  EXPECT_EQ(Messages()[1], "Error Number: 91\r\nModule: ColorBox\r\nProcedure: DrawButton\r\n\r\nObject not set\r\n");
  EXPECT_EQ(Messages()[3],
            "Error Number: 91\r\nModule: ColorBox\r\nProcedure: picScreen_KeyDown\r\n\r\nObject not set\r\n");
  EXPECT_TRUE(Log.empty());
}

}  // namespace
}  // namespace lumo
