#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "colorhexagon/ColorHexagon.h"
#include "colorhexagon/HexagonTable.h"
#include "colormodel/TextRules.h"
#include "support/MemoryPropertyBag.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"
#include "support/TestLabel.h"

namespace lumo {
namespace {

using namespace lumo::testing;

// Every event as one line: name, colour in hex, colour name, then the other arguments.
struct EventLog : ColorHexagonEvents {
  std::vector<std::string> Seen;
  void Log(const char* event, OLE_COLOR c, const std::string& name, const std::string& rest = {}) {
    Seen.push_back(event + (" " + text::Hex(c)) + " " + name + rest);
  }
  void ColorChanged(OLE_COLOR c, const std::string& name, const std::string& hex) override {
    Log("ColorChanged", c, name, " " + hex);
  }
  void IsAutomaticChanged(bool value) override { Seen.push_back("IsAutomaticChanged " + std::to_string(value)); }
  void ColorClick(OLE_COLOR c, const std::string& name, std::int16_t b, std::int16_t, std::int32_t x,
                  std::int32_t y) override {
    Log("ColorClick", c, name, " " + std::to_string(b) + " " + std::to_string(x) + "," + std::to_string(y));
  }
  void ColorDblClick(OLE_COLOR c, const std::string& name) override { Log("ColorDblClick", c, name); }
  void ColorOver(OLE_COLOR c, const std::string& name, std::int16_t, std::int16_t, std::int32_t,
                 std::int32_t) override {
    Log("ColorOver", c, name);
  }
};

class Hexagon : public ::testing::Test {
 protected:
  TestHost host;
  RecordingSurface screen{239, 249};
  TestLabel label;
  RecordingSite site;
  EventLog events;
  ColorHexagon hexagon{host.Runtime, screen, label, site, events};

  CellPtr Cell(std::int32_t index) const { return hexagon.Cells()->Item(index); }
  // The middle of a cell's stored box: inside that cell only.
  Point Centre(std::int32_t index) const {
    const CellPtr c = Cell(index);
    return {(c->BoundLeft() + c->BoundRight()) / 2, (c->BoundTop() + c->BoundBottom()) / 2};
  }
  void Click(std::int32_t index) { screen.Click(Centre(index).X, Centre(index).Y); }
  std::int32_t Selected() const { return hexagon.SelectedCell() ? hexagon.SelectedCell()->Index() : 0; }
  void MakeManual() {
    hexagon.SetIsAutomatic(false);
    events.Seen.clear();
    screen.ClearCalls();
  }
};

TEST_F(Hexagon, InitialisePaintsEachCellInItsOwnColourAndStoresItsBox) {
  ASSERT_EQ(hexagon.Cells()->Count(), HexagonTable::CellCount);
  const auto polygons = screen.CallsOf("Polygon");
  ASSERT_EQ(polygons.size(), static_cast<std::size_t>(HexagonTable::CellCount));
  EXPECT_EQ(polygons[0].Args, (std::vector<std::int32_t>{54, 4, 63, 0, 71, 4, 71, 14, 64, 18, 63, 18, 54, 14}));
  EXPECT_EQ(std::tuple(polygons[0].FillColor, polygons[0].ForeColor, polygons[0].FillStyle),
            std::tuple(ColorHexagon::DefaultColor, ColorHexagon::DefaultColor, fill::Solid));
  EXPECT_EQ(polygons[127].Args,
            (std::vector<std::int32_t>{36, 214, 54, 206, 71, 214, 71, 234, 55, 242, 54, 242, 36, 234}));
  // Rows 15 pixels apart, each at its offset in steps of 9 (the lower grey row from X 3).
  std::map<std::int32_t, std::int32_t> rowLeft;  // top of the row's outline -> its first left
  for (const auto& polygon : polygons) {
    const auto [it, added] = rowLeft.emplace(polygon.Args[1], polygon.Args[0]);
    if (!added) it->second = std::min(it->second, polygon.Args[0]);
  }
  EXPECT_EQ(rowLeft, (std::map<std::int32_t, std::int32_t>{{4, 54},    {19, 45},   {34, 36},   {49, 27},  {64, 18},
                                                           {79, 9},    {94, 0},    {109, 9},   {124, 18}, {139, 27},
                                                           {154, 36},  {169, 45},  {184, 54},  {214, 36}, {229, 99}}));
  const CellPtr white = Cell(128);
  EXPECT_EQ((Rect{white->BoundLeft(), white->BoundTop(), white->BoundRight(), white->BoundBottom()}),
            (Rect{36, 214, 71, 234}));
  EXPECT_EQ(screen.FillStyle(), fill::Transparent);
  EXPECT_TRUE(events.Seen.empty());
  EXPECT_EQ(Selected(), 0);
}

TEST_F(Hexagon, SelectionMarkIsInsetThreeLeftTwoRightInInvertedColourAtPenWidthTwo) {
  MakeManual();
  hexagon.SetColor(ColorHexagon::DefaultColor);
  const auto polygons = screen.CallsOf("Polygon");
  ASSERT_EQ(polygons.size(), 2u);
  EXPECT_EQ(polygons[1].Args, (std::vector<std::int32_t>{57, 4, 63, 2, 69, 4, 69, 14, 64, 16, 63, 16, 57, 14}));
  // 0x663300 inverted, at pen width 2, and the pen back at 1 afterwards.
  EXPECT_EQ(std::tuple(polygons[1].ForeColor, polygons[1].DrawWidth, polygons[1].FillStyle, screen.DrawWidth()),
            std::tuple(0x99CCFF, 2, fill::Transparent, 1));
  EXPECT_EQ(Selected(), 1);
}

struct SetColorCase {
  bool automatic;
  OLE_COLOR color;
  std::int32_t markedCell;  // 0: nothing marked, nothing drawn
  const char* event;        // "": none
  friend void PrintTo(const SetColorCase& c, std::ostream* os) { *os << text::Hex(c.color); }
};

class HexagonColorSetter : public Hexagon, public ::testing::WithParamInterface<SetColorCase> {};

// While automatic the colour is only stored; otherwise the exact cell, or cell 1, is marked.
TEST_P(HexagonColorSetter, MarksTheExactCellOrCellOneAndReportsTheSetColour) {
  if (!GetParam().automatic) MakeManual();
  screen.ClearCalls();
  hexagon.SetColor(GetParam().color);
  EXPECT_EQ(Selected(), GetParam().markedCell);
  EXPECT_EQ(hexagon.Color(), GetParam().color);
  EXPECT_EQ(events.Seen, *GetParam().event ? std::vector<std::string>{GetParam().event} : std::vector<std::string>{});
  if (GetParam().markedCell == 0) { EXPECT_EQ(screen.CountOf("Polygon"), 0); }
}

INSTANTIATE_TEST_SUITE_P(
    TableAndOutside, HexagonColorSetter,
    ::testing::Values(SetColorCase{false, 0xFFFFFF, 64, "ColorChanged FFFFFF Hex={FF,FF,FF} Hex={FF,FF,FF}"},
                      SetColorCase{false, RGB(0xFF, 0x66, 0x66), 100, "ColorChanged 6666FF Hex={FF,66,66} Hex={FF,66,66}"},
                      SetColorCase{false, RGB(1, 2, 3), 1, "ColorChanged 30201 Hex={01,02,03} Hex={01,02,03}"},
                      SetColorCase{false, 0, 135, "ColorChanged 0 Hex={00,00,00} Hex={00,00,00}"},
                      SetColorCase{true, 0xFFFFFF, 0, ""}),
    [](const auto& info) { return (info.param.automatic ? "Automatic" : "Marks") + std::to_string(info.param.markedCell); });

struct ClickCase {
  const char* name;
  bool automaticBefore;
  OLE_COLOR colorBefore;
  std::vector<std::string> events;
  friend void PrintTo(const ClickCase& c, std::ostream* os) { *os << c.name; }
};

class HexagonClick : public Hexagon, public ::testing::WithParamInterface<ClickCase> {};

TEST_P(HexagonClick, RaisesColourThenAutomaticThenClick) {
  if (!GetParam().automaticBefore) MakeManual();
  hexagon.SetColor(GetParam().colorBefore);
  events.Seen.clear();
  Click(64);
  EXPECT_EQ(events.Seen, GetParam().events);
  EXPECT_EQ(std::tuple(hexagon.Color(), hexagon.IsAutomatic(), Selected()), std::tuple(0xFFFFFF, false, 64));
}

constexpr const char* kClickWhite = "ColorClick FFFFFF Hex={FF,FF,FF} 1 116,99";

INSTANTIATE_TEST_SUITE_P(
    States, HexagonClick,
    ::testing::Values(ClickCase{"FromAutomatic", true, 0, {"IsAutomaticChanged 0", kClickWhite}},
                      ClickCase{"ToANewColour", false, 0,
                                {"ColorChanged FFFFFF Hex={FF,FF,FF} Hex={FF,FF,FF}", kClickWhite}},
                      ClickCase{"OnTheCurrentColour", false, 0xFFFFFF, {kClickWhite}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Hexagon, ReleasingOnAnotherCellChoosesNothingAndOnlyACompletedClickGetsADoubleClick) {
  screen.MouseDown(Centre(64).X, Centre(64).Y);
  screen.MouseUp(Centre(65).X, Centre(65).Y);
  screen.DoubleClick();
  EXPECT_TRUE(events.Seen.empty());
  EXPECT_EQ(std::pair(hexagon.IsAutomatic(), hexagon.Color()), std::pair(true, ColorHexagon::DefaultColor));
  Click(135);
  events.Seen.clear();
  screen.DoubleClick();
  EXPECT_EQ(events.Seen, std::vector<std::string>{"ColorDblClick 0 Hex={00,00,00}"});
}

TEST_F(Hexagon, HoverShowsTextsUntilTheTimerClearsThemOffTheCells) {
  screen.MouseMove(Centre(1).X, Centre(1).Y);
  EXPECT_EQ(label.Caption(), "Hex={00,33,66}");
  EXPECT_EQ(screen.ToolTipText(), "00,33,66 (#003366)");
  EXPECT_EQ(events.Seen, std::vector<std::string>{"ColorOver 663300 Hex={00,33,66}"});
  host.Timers.FireEnabled();
  EXPECT_EQ(label.Caption(), "Hex={00,33,66}");  // still over a cell
  screen.MouseMove(2, 2);                        // inside the surface, off the cells
  EXPECT_EQ(label.Caption(), "Hex={00,33,66}");
  host.Timers.FireEnabled();
  EXPECT_EQ(label.Caption(), "");
  EXPECT_EQ(screen.ToolTipText(), "");
  screen.MouseMove(239, 249);  // the far edge still counts as inside
  screen.MouseMove(-1, 10);
  EXPECT_EQ(host.Windows.ReleaseCalls, 1);
  EXPECT_EQ(host.Timers.Live().at(0)->Interval(), ColorHexagon::TimerIntervalMs);
}

TEST_F(Hexagon, FirstKeySelectsCellOneAndArrowsMoveWithoutTouchingAutomatic) {
  screen.Key(65);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(events.Seen, std::vector<std::string>{"ColorChanged 663300 Hex={00,33,66} Hex={6697728}"});
  screen.Key(40);
  screen.Key(39);
  EXPECT_EQ(Selected(), 10);
  EXPECT_EQ(hexagon.Color(), Cell(10)->Color());
  EXPECT_TRUE(hexagon.IsAutomatic());
  screen.Key(65);
  EXPECT_EQ(Selected(), 10);
}

struct MoveCase {
  std::int32_t from;
  std::int32_t direction;
  std::int32_t to;
  friend void PrintTo(const MoveCase& c, std::ostream* os) { *os << c.from << " " << c.direction << " " << c.to; }
};

class HexagonNextIndex : public Hexagon, public ::testing::WithParamInterface<MoveCase> {};

TEST_P(HexagonNextIndex, WalksTheDiagonalsWithTheirWraps) {
  hexagon.UserControl_InitProperties();  // a live control: 270 cells
  EXPECT_EQ(hexagon.GetNextIndex(GetParam().from, GetParam().direction), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    EdgeCases, HexagonNextIndex,
    ::testing::Values(MoveCase{1, 1, 1}, MoveCase{270, 2, 270}, MoveCase{3, 3, 2}, MoveCase{8, 3, 1},
                      MoveCase{16, 3, 7}, MoveCase{58, 3, 45}, MoveCase{128, 3, 127}, MoveCase{200, 3, 200},
                      MoveCase{45, 4, 57}, MoveCase{70, 4, 83}, MoveCase{112, 4, 121}, MoveCase{120, 4, 128},
                      MoveCase{121, 4, 122}, MoveCase{127, 4, 128}, MoveCase{135, 4, 136}, MoveCase{20, 5, 0}));

TEST_F(Hexagon, PersistsFiveKeysInOrderAndReadsThemBack) {
  hexagon.SetAutomaticText("Auto");
  hexagon.SetAutoColor(0x123456);
  hexagon.SetBackColor(0xFFFFFF);
  MakeManual();
  hexagon.SetColor(0xFFFFFF);
  MemoryPropertyBag bag;
  hexagon.UserControl_WriteProperties(bag);
  const std::vector<std::string> keys{"IsAutomatic", "AutomaticText", "AutoColor", "Color", "BackColor"};
  EXPECT_EQ(bag.WriteOrder, keys);

  RecordingSurface otherScreen{239, 249};
  EventLog otherEvents;
  ColorHexagon loaded{host.Runtime, otherScreen, label, site, otherEvents};
  loaded.UserControl_ReadProperties(bag);
  EXPECT_EQ(bag.ReadOrder, keys);
  EXPECT_EQ(std::tuple(loaded.IsAutomatic(), loaded.AutomaticText(), loaded.AutoColor(), loaded.Color()),
            std::tuple(false, "Auto", 0x123456, 0xFFFFFF));
  EXPECT_EQ(std::pair(loaded.BackColor(), otherScreen.BackColor()), std::pair(0xFFFFFF, 0xFFFFFF));
  EXPECT_EQ(loaded.SelectedCell()->Index(), 64);  // the refresh marks the loaded colour
}

TEST_F(Hexagon, ResizeSnapsToTheSurfaceAndTheLabelUnderIt) {
  site.Size(9000, 9000);
  hexagon.UserControl_Resize();
  EXPECT_EQ(screen.CallsOf("Move").back().Args, (std::vector<std::int32_t>{0, 0, 3585, 3735}));
  EXPECT_EQ(std::pair(label.Left(), label.Top()), std::pair(0, 3735));
  EXPECT_EQ(std::pair(site.WidthTwips, site.HeightTwips), std::pair(3585, 3735 + label.Height()));
}

}  // namespace
}  // namespace lumo
