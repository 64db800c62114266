#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

#include "ColorBoxHarness.h"
#include "colorbox/ColorBoxPalettes.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;

struct Shape {
  std::int32_t style, cells, columns;
  const char* marker;
  std::int32_t named;  // cells that come with a name of their own
  OLE_COLOR step;      // for the ramps: the colour added from one cell to the next
};
void PrintTo(const Shape& s, std::ostream* os) { *os << "style " << s.style; }

class Palettes : public ::testing::TestWithParam<Shape> {
 protected:
  testing::TestHost host;
  CColorboxCol cells{host.Errors()};
  ColorBoxPalettes palettes{host.Errors()};
};

TEST_P(Palettes, StyleLoadsItsCellsColumnsMarkerAndNames) {
  const Shape& s = GetParam();
  cells.Add("left over", 1, 0, 0);
  ASSERT_TRUE(palettes.Load(s.style, cells));
  EXPECT_EQ(cells.Count(), s.cells);
  EXPECT_EQ(palettes.Columns(), s.columns);
  EXPECT_EQ(palettes.RowGapMarker(), s.marker);
  EXPECT_EQ(std::count_if(cells.begin(), cells.end(), [](const CellPtr& c) { return !c->Name().empty(); }), s.named);
  OLE_COLOR ramp = 0;
  for (const CellPtr& cell : cells) {
    EXPECT_TRUE(s.step == 0 || cell->Color() == ramp);
    ramp += s.step;
    EXPECT_TRUE(cell->X() == 0 && cell->Y() == 0 && !cell->IsLarge());
  }
}

INSTANTIATE_TEST_SUITE_P(
    EveryStyle, Palettes,
    ::testing::Values(Shape{cpsStandard, 16, 8, "", 16, 0}, Shape{cpsStandardWithBW, 32, 8, ";2;", 17, 0},
                      Shape{cpsGreyScale16, 16, 8, "", 0, 0x101010}, Shape{cpsGreyScale256, 256, 16, "", 0, 0x010101},
                      Shape{cpsPalette48, 48, 8, "", 14, 0}, Shape{cpsPalette48WithBW, 64, 8, ";6;", 15, 0},
                      Shape{cpsPalette256, 256, 16, "", 48, 0}, Shape{cpsPalette256WithBW, 272, 16, ";16;", 49, 0},
                      Shape{cpsPaletteRed256, 256, 16, "", 0, 0x01}, Shape{cpsPaletteGreen256, 256, 16, "", 0, 0x0100},
                      Shape{cpsPaletteBlue256, 256, 16, "", 0, 0x010000}, Shape{cpsPaletteRed16, 16, 8, "", 0, 0x10},
                      Shape{cpsPaletteGreen16, 16, 8, "", 0, 0x1000}, Shape{cpsPaletteBlue16, 16, 8, "", 0, 0x100000},
                      Shape{cpsPalette40, 40, 8, "", 0, 0}),
    [](const auto& info) { return "Style" + std::to_string(info.param.style); });

std::vector<OLE_COLOR> Row(const CColorboxCol& cells, std::int32_t first) {
  std::vector<OLE_COLOR> colors;
  for (std::int32_t i = first; i < first + 16; ++i) colors.push_back(cells.Item(i)->Color());
  return colors;
}

TEST_F(Palettes, Palette256RepeatsGridRowNineAndEndsWithFortyBlacks) {
  palettes.Load(cpsPalette256, cells);
  EXPECT_EQ(Row(cells, 145), Row(cells, 161));
  EXPECT_NE(Row(cells, 129), Row(cells, 145));
  for (std::int32_t i = 217; i <= 256; ++i) EXPECT_TRUE(cells.Item(i)->Color() == 0 && cells.Item(i)->Name() == "Black");
  EXPECT_EQ(cells.Item(6)->Color(), RGB(255, 0, 0));  // red varies fastest
  EXPECT_EQ(cells.Item(216)->Color(), RGB(255, 255, 255));
  EXPECT_EQ(cells.GetObjectByColor(RGB(255, 0, 255))->Name(), "Fushia");  // the spelling is kept
}

class ColorBoxPalette : public ColorBoxHarness {};

TEST_F(ColorBoxPalette, RowGapMarkerAndItsHeightSurviveASwitchToAStyleWithoutGreyRow) {
  box->SetPickStyle(cpsStandardWithBW);
  box->SetPickStyle(cpsStandard);
  EXPECT_EQ(box->Cells()->Count(), 16);
  EXPECT_EQ(box->RowGapMarker(), ";2;");
  EXPECT_EQ(surface.ScaleHeight(), 84 + 8);
}

TEST_F(ColorBoxPalette, UnknownStyleKeepsThePaletteAndMinusOneStopsRefreshAltogether) {
  box->SetPickStyle(cpsPalette40);
  box->SetPickStyle(15);
  EXPECT_EQ(box->PickStyle(), 15);
  EXPECT_EQ(box->Cells()->Count(), 40);
  EXPECT_EQ(Resizes, 3);  // creation and two styles: each Refresh still draws
  box->SetPickStyle(-1);
  surface.ClearCalls();
  box->Refresh();
  box->SetColor(0xFF);
  EXPECT_TRUE(surface.Calls.empty());
  EXPECT_EQ(Resizes, 3);
  box->SetPickStyle(cpsStandard);
  EXPECT_EQ(box->Cells()->Count(), 16);
}

TEST(ColorBoxStrCount, CountsOccurrencesAndFailsOnAnEmptySearchText) {
  EXPECT_EQ(ColorBox::StrCount(";2;", ";", 1), 2);
  EXPECT_EQ(ColorBox::StrCount(";16;", ";2;", 1), 0);
  EXPECT_EQ(ColorBox::StrCount("", ";", 1), 0);
  EXPECT_EQ(ColorBox::StrCount("aAbA", "a", 1), 3);
  EXPECT_EQ(ColorBox::StrCount("aAbA", "a", 0), 1);
  EXPECT_THROW(ColorBox::StrCount(";2;", "", 1), RuntimeError);
}

}  // namespace
}  // namespace lumo
