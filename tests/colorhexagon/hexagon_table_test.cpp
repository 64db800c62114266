#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "colorhexagon/HexagonGeometry.h"
#include "colorhexagon/HexagonTable.h"

namespace lumo {
namespace {

const HexagonCellEntry& CellAt(std::int32_t index) {
  return HexagonTable::Cells().at(static_cast<std::size_t>(index - 1));
}

TEST(HexagonTable, HasThirteenInterlockingRowsAndTwoGreyRows) {
  std::map<std::int32_t, std::int32_t> perRow;
  for (const auto& cell : HexagonTable::Cells()) ++perRow[cell.Y];
  const std::map<std::int32_t, std::int32_t> expected{{0, 7},   {1, 8},   {2, 9},   {3, 10}, {4, 11},
                                                      {5, 12},  {6, 13},  {7, 12},  {8, 11}, {9, 10},
                                                      {10, 9},  {11, 8},  {12, 7},  {14, 5}, {15, 3}};
  EXPECT_EQ(perRow, expected);
  // Within a honeycomb row X counts up from 0 in insertion order.
  for (std::int32_t i = 2; i <= HexagonTable::HoneycombCount; ++i) {
    const auto& before = CellAt(i - 1);
    const auto& cell = CellAt(i);
    EXPECT_EQ(cell.X, cell.Y == before.Y ? before.X + 1 : 0) << i;
  }
}

struct NamedCellCase {
  std::int32_t index;
  const char* name;
  OLE_COLOR color;
  std::int32_t x, y;
  bool large;
  friend void PrintTo(const NamedCellCase& c, std::ostream* os) { *os << "cell " << c.index; }
};

class HexagonNamedCells : public ::testing::TestWithParam<NamedCellCase> {};

TEST_P(HexagonNamedCells, SitWhereTheControlExpectsThem) {
  const auto& want = GetParam();
  const auto& cell = CellAt(want.index);
  EXPECT_STREQ(cell.Name, want.name);
  EXPECT_EQ(cell.Color, want.color);
  EXPECT_EQ(cell.X, want.x);
  EXPECT_EQ(cell.Y, want.y);
  EXPECT_EQ(cell.IsLarge, want.large);
}

INSTANTIATE_TEST_SUITE_P(
    EdgeCells, HexagonNamedCells,
    ::testing::Values(NamedCellCase{1, "", RGB(0x00, 0x33, 0x66), 0, 0, false},
                      NamedCellCase{64, "White", RGB(0xFF, 0xFF, 0xFF), 6, 6, false},
                      NamedCellCase{68, "Fuchsia", RGB(0xFF, 0x00, 0xFF), 10, 6, false},
                      NamedCellCase{118, "", RGB(0xFF, 0x00, 0x00), 5, 11, false},  // pure red, unnamed
                      NamedCellCase{127, "", RGB(0x99, 0x33, 0x33), 6, 12, false},
                      NamedCellCase{128, "", RGB(0xFF, 0xFF, 0xFF), 0, 14, true},  // large white, unnamed
                      NamedCellCase{132, "Gray", RGB(0x80, 0x80, 0x80), 4, 15, false},
                      NamedCellCase{135, "Black", 0, 7, 14, true}),
    [](const auto& info) { return "Cell" + std::to_string(info.param.index); });

TEST(HexagonTable, NamesNineCellsAndOnlyTheEndsOfTheGreyRowAreLarge) {
  std::vector<std::string> names;
  std::vector<std::int32_t> large;
  for (std::int32_t i = 1; i <= HexagonTable::CellCount; ++i) {
    if (*CellAt(i).Name != '\0') names.push_back(CellAt(i).Name);
    if (CellAt(i).IsLarge) large.push_back(i);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Blue", "Aqua", "Lime", "White", "Fuchsia", "Yellow", "Maroon",
                                             "Gray", "Black"}));
  EXPECT_EQ(large, (std::vector<std::int32_t>{128, 135}));
}

TEST(HexagonTable, HoldsFF6666TwiceInRowsNineAndTen) {
  std::vector<std::int32_t> found;
  for (std::int32_t i = 1; i <= HexagonTable::CellCount; ++i) {
    if (CellAt(i).Color == RGB(0xFF, 0x66, 0x66)) found.push_back(i);
  }
  EXPECT_EQ(found, (std::vector<std::int32_t>{100, 110}));
}

TEST(HexagonGeometry, RowOffsetsInterlockAndUnknownRowsGetZero) {
  const std::vector<std::int32_t> expected{54, 45, 36, 27, 18, 9, 0, 9, 18, 27, 36, 45, 54, 0, 36, 45, 81, 0};
  for (std::int32_t row = 0; row < static_cast<std::int32_t>(expected.size()); ++row) {
    EXPECT_EQ(HexagonGeometry::RowOffset(row), expected[static_cast<std::size_t>(row)]) << row;
  }
  EXPECT_EQ(HexagonGeometry::RowOffset(40), 0);
}

TEST(HexagonGeometry, SmallAndLargeOutlinesHaveATwoVertexBottom) {
  EXPECT_EQ(HexagonGeometry::Outline(0, 0, false),
            (std::vector<Point>{{54, 4}, {63, 0}, {71, 4}, {71, 14}, {64, 18}, {63, 18}, {54, 14}}));
  EXPECT_EQ(HexagonGeometry::Outline(0, 14, true),
            (std::vector<Point>{{36, 214}, {54, 206}, {71, 214}, {71, 234}, {55, 242}, {54, 242}, {36, 234}}));
  EXPECT_EQ(HexagonGeometry::Bounds(0, 0, false), (Rect{54, 4, 71, 14}));
  EXPECT_EQ(HexagonGeometry::Bounds(0, 14, true), (Rect{36, 214, 71, 234}));
}

}  // namespace
}  // namespace lumo
