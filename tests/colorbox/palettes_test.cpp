#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "ColorBoxHarness.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;

struct Palette {
  std::int32_t style, cells;
  std::int32_t width, height;  // pixels, with both buttons
  OLE_COLOR step;              // for the ramps: the colour added from one cell to the next
};
void PrintTo(const Palette& p, std::ostream* os) { *os << "style " << p.style; }

class ColorBoxPalettes : public ColorBoxHarness, public ::testing::WithParamInterface<Palette> {};

// Width: 12 per column, 6 per gap, 8 of border. Height: 18 per row + 2, the text
// height (17) for Automatic, text height + 4 for More Colors, 4 per ";" of the
// row-gap marker, 8 of border.
TEST_P(ColorBoxPalettes, StyleReplacesTheCellsAndSizesSurfaceAndControlToThem) {
  const Palette& p = GetParam();
  box->SetPickStyle(p.style);
  EXPECT_EQ(box->Cells()->Count(), p.cells);
  EXPECT_EQ(surface.CallsOf("Move").back().Args, (std::vector<std::int32_t>{0, 0, p.width * 15, p.height * 15}));
  EXPECT_EQ((std::vector<std::int32_t>{site.WidthTwips, site.HeightTwips}),
            (std::vector<std::int32_t>{p.width * 15, p.height * 15}));
  OLE_COLOR ramp = 0;
  for (const CellPtr& cell : *box->Cells()) {
    EXPECT_TRUE(p.step == 0 || cell->Color() == ramp) << cell->Index();
    ramp += p.step;
  }
}

INSTANTIATE_TEST_SUITE_P(
    EveryStyle, ColorBoxPalettes,
    ::testing::Values(Palette{cpsStandard, 16, 146, 84, 0}, Palette{cpsStandardWithBW, 32, 146, 128, 0},
                      Palette{cpsGreyScale16, 16, 146, 84, 0x101010}, Palette{cpsGreyScale256, 256, 290, 336, 0x010101},
                      Palette{cpsPalette48, 48, 146, 156, 0}, Palette{cpsPalette48WithBW, 64, 146, 200, 0},
                      Palette{cpsPalette256, 256, 290, 336, 0}, Palette{cpsPalette256WithBW, 272, 290, 362, 0},
                      Palette{cpsPaletteRed256, 256, 290, 336, 0x01}, Palette{cpsPaletteGreen256, 256, 290, 336, 0x0100},
                      Palette{cpsPaletteBlue256, 256, 290, 336, 0x010000}, Palette{cpsPaletteRed16, 16, 146, 84, 0x10},
                      Palette{cpsPaletteGreen16, 16, 146, 84, 0x1000}, Palette{cpsPaletteBlue16, 16, 146, 84, 0x100000},
                      Palette{cpsPalette40, 40, 146, 138, 0}),
    [](const auto& info) { return "Style" + std::to_string(info.param.style); });

class ColorBoxPalette : public ColorBoxHarness {};

TEST_F(ColorBoxPalette, EachButtonAddsItsHeightAndTheRowGapMarkerOutlivesItsPalette) {
  box->SetPickStyle(cpsStandardWithBW);
  const std::pair<bool, bool> buttons[] = {{false, false}, {true, false}, {false, true}, {true, true}};
  const std::int32_t heights[] = {90, 107, 111, 128};
  for (std::size_t i = 0; i < 4; ++i) {
    box->SetAllowAutomatic(buttons[i].first);
    box->SetAllowMoreColors(buttons[i].second);
    EXPECT_EQ(surface.ScaleHeight(), heights[i]) << i;
  }
  box->SetPickStyle(cpsStandard);  // a style without a grey row keeps the marker and its height
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
  EXPECT_EQ(ColorBox::StrCount("aAbA", "a", 1), 3);
  EXPECT_EQ(ColorBox::StrCount("aAbA", "a", 0), 1);
  EXPECT_THROW(ColorBox::StrCount(";2;", "", 1), RuntimeError);
}

}  // namespace
}  // namespace lumo
