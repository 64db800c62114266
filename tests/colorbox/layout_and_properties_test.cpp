#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "ColorBoxHarness.h"
#include "colormodel/HostTimer.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::kTextHeight;
using testing::Lines;
using testing::MemoryPropertyBag;
using Args = std::vector<std::int32_t>;

class ColorBoxDrawing : public ColorBoxHarness {};

// Width: 12 per column, 6 per gap, 8 of border. Height: 18 per row + 2, the text
// height (17) for Automatic, text height + 4 for More Colors, 4 per ";" of the
// row-gap marker, 8 of border.
TEST_F(ColorBoxDrawing, StyleReplacesTheCellsAndSizesSurfaceAndControlToThem) {
  const struct {
    std::int32_t style, cells;
    std::int32_t width, height;  // pixels, with both buttons
    OLE_COLOR step;              // for the ramps: the colour added from one cell to the next
  } palettes[] = {{cpsStandard, 16, 146, 84, 0},           {cpsStandardWithBW, 32, 146, 128, 0},
                  {cpsGreyScale16, 16, 146, 84, 0x101010}, {cpsGreyScale256, 256, 290, 336, 0x010101},
                  {cpsPalette48, 48, 146, 156, 0},         {cpsPalette48WithBW, 64, 146, 200, 0},
                  {cpsPalette256, 256, 290, 336, 0},       {cpsPalette256WithBW, 272, 290, 362, 0},
                  {cpsPaletteRed256, 256, 290, 336, 0x01}, {cpsPaletteGreen256, 256, 290, 336, 0x0100},
                  {cpsPaletteBlue256, 256, 290, 336, 0x010000}, {cpsPaletteRed16, 16, 146, 84, 0x10},
                  {cpsPaletteGreen16, 16, 146, 84, 0x1000}, {cpsPaletteBlue16, 16, 146, 84, 0x100000},
                  {cpsPalette40, 40, 146, 138, 0}};
  for (const auto& p : palettes) {
    Recreate();
    box->SetPickStyle(p.style);
    EXPECT_EQ(box->Cells()->Count(), p.cells) << p.style;
    EXPECT_EQ(surface.CallsOf("Move").back().Args, (Args{0, 0, p.width * 15, p.height * 15})) << p.style;
    EXPECT_EQ((Args{site.WidthTwips, site.HeightTwips}), (Args{p.width * 15, p.height * 15})) << p.style;
    OLE_COLOR ramp = 0;
    for (const CellPtr& cell : *box->Cells()) {
      EXPECT_TRUE(p.step == 0 || cell->Color() == ramp) << p.style << "/" << cell->Index();
      ramp += p.step;
    }
  }
}

TEST_F(ColorBoxDrawing, UnnamedCellsAreNamedAfterTheirColour) {
  box->SetPickStyle(cpsPalette48);
  EXPECT_EQ(box->Cells()->GetObjectByColor(RGB(0xFF, 0x82, 0x84))->Name(), "#FF8284 (FF,82,84)");
  EXPECT_EQ(box->Cells()->Item(1)->Name(), "White");
}

TEST_F(ColorBoxDrawing, EachButtonAddsItsHeightAndTheRowGapMarkerOutlivesItsPalette) {
  box->SetPickStyle(cpsStandardWithBW);
  const struct {
    bool automatic, more;
    std::int32_t height;
  } cases[] = {{false, false, 90}, {true, false, 107}, {false, true, 111}, {true, true, 128}};
  for (const auto& c : cases) {
    box->SetAllowAutomatic(c.automatic);
    box->SetAllowMoreColors(c.more);
    EXPECT_EQ(surface.ScaleHeight(), c.height) << c.automatic << c.more;
  }
  box->SetPickStyle(cpsStandard);  // a style without a grey row keeps the marker and its height
  EXPECT_EQ(box->Cells()->Count(), 16);
  EXPECT_EQ(box->RowGapMarker(), ";2;");
  EXPECT_EQ(surface.ScaleHeight(), 84 + 8);
}

TEST_F(ColorBoxDrawing, UnknownStyleKeepsThePaletteAndMinusOneStopsRefreshAltogether) {
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

// Compare modes and an empty search text are reached only here; the layout counts the rest.
TEST(ColorBoxStrCount, ComparesByModeAndFailsOnAnEmptySearchText) {
  EXPECT_EQ(ColorBox::StrCount("aAbA", "a", 1), 3);
  EXPECT_EQ(ColorBox::StrCount("aAbA", "a", 0), 1);
  EXPECT_THROW(ColorBox::StrCount(";2;", "", 1), RuntimeError);
}

TEST_F(ColorBoxDrawing, MarkedRowDropsFourPixelsWithAnEtchedLineFromXOneInTheGap) {
  box->SetAllowAutomatic(false);
  box->SetAllowMoreColors(false);
  surface.ClearCalls();
  box->SetPickStyle(cpsStandardWithBW);
  EXPECT_EQ(Bounds(1), (Rect{4, 5, 16, 17}));
  EXPECT_EQ(Bounds(17).Top - Bounds(9).Top, 18 + 4);
  EXPECT_EQ(Bounds(25).Top - Bounds(17).Top, 18);
  const auto lines = surface.CallsOf("Line");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ((Args{lines[0].ForeColor, lines[1].ForeColor}), (Args{sys::ButtonShadow, sys::ButtonHighlight}));
  EXPECT_EQ(lines[0].Args, (Args{1, 39, 139, 39}));
  EXPECT_EQ(lines[1].Args, (Args{1, 40, 139, 40}));
  EXPECT_TRUE(Frame(9).Bottom <= 39 && Frame(17).Top > 40);
}

TEST_F(ColorBoxDrawing, EverySquareIsErasedFilledOutlinedAndRemembersItsBounds) {
  surface.ClearCalls();
  box->SetPickStyle(cpsPalette40);
  for (std::int32_t i = 1; i <= 40; ++i) {
    const auto squares = CallsAt("Rectangle", Bounds(i));
    ASSERT_EQ(squares.size(), 1u) << i;
    EXPECT_EQ(Bounds(i).Right - Bounds(i).Left, 12);
    EXPECT_EQ((Args{squares[0].FillColor, squares[0].ForeColor, squares[0].FillStyle}),
              (Args{box->Cells()->Item(i)->Color(), sys::ButtonShadow, fill::Solid}));
    EXPECT_EQ(CallsAt("Rectangle", Frame(i)).at(0).FillColor, sys::ButtonFace);
  }
}

TEST_F(ColorBoxDrawing, EveryCellOfTheSelectedColourGetsASunkenFrameAndTheHotCellARaisedOne) {
  const struct {
    std::int32_t style, cell, frames;
  } cases[] = {{cpsStandard, 14, 1}, {cpsPalette256, 1, 41}, {cpsPalette256, 161, 2}, {cpsPalette256WithBW, 257, 2}};
  for (const auto& c : cases) {
    box->SetPickStyle(c.style);
    surface.ClearCalls();
    box->SetColor(box->Cells()->Item(c.cell)->Color());
    const Rect f = Frame(c.cell);
    EXPECT_EQ(surface.CountOf("DrawEdge"), c.frames) << c.style << "/" << c.cell;
    EXPECT_EQ(CallsAt("DrawEdge", f).at(0).Args,
              (Args{f.Left, f.Top, f.Right, f.Bottom, edge::SunkenOuter, edge::AllSides}));
  }
  MoveTo(CellCentre(5));
  EXPECT_EQ(CallsAt("DrawEdge", Frame(5)).back().Args[4], edge::RaisedInner);
  EXPECT_EQ(Frame(5).Right - Frame(5).Left, 18);
}

TEST_F(ColorBoxDrawing, ButtonsAreLaidOutAroundTheGrid) {
  EXPECT_EQ(box->AutoRect(), (Rect{3, 1, 143, 1 + kTextHeight}));
  EXPECT_EQ(box->MoreRect(), (Rect{2, 58, 144, 58 + kTextHeight}));
  EXPECT_EQ(surface.CallsOf("Line").at(0).Args, (Args{4, 56, 142, 56}));  // the separator starts at the grid
  EXPECT_EQ(CallsAt("Rectangle", {4, 60, 31, 73}).at(0).FillColor, sys::HighlightText);
  EXPECT_EQ(CallsAt("Rectangle", {5, 61, 30, 72}).at(0).ForeColor, sys::ButtonShadow);
  const auto caption = surface.CallsOf("DrawTextA").back();
  EXPECT_EQ(caption.Text, "More Colors...");
  EXPECT_EQ(caption.Args, (Args{35, 60, 150, 60 + kTextHeight, textformat::LeftTop}));
  EXPECT_EQ(caption.ForeColor, sys::ButtonText);
}

TEST_F(ColorBoxDrawing, ButtonsShowTheirHotStateAndTheMoreColorsFlagNeverDrops) {
  Rect caption = box->AutoRect();
  caption.Top += 2;
  EXPECT_FALSE(box->MoreHot());
  for (const bool hot : {true, false}) {
    surface.ClearCalls();
    MoveTo(hot ? Centre(box->AutoRect()) : CellCentre(1));
    const auto button = CallsAt("Rectangle", box->AutoRect()).at(0);
    EXPECT_EQ((Args{button.FillColor, button.ForeColor, button.FillStyle}),
              (Args{hot ? sys::ButtonShadow : sys::ButtonFace, sys::ButtonShadow, fill::Solid}));
    const auto text = CallsAt("DrawTextA", caption).at(0);
    EXPECT_EQ(text.Text, "Automatic");
    EXPECT_EQ((Args{text.Args[4], text.ForeColor}), (Args{textformat::Center, hot ? sys::HighlightText : sys::ButtonText}));
    EXPECT_EQ(box->AutoHot(), hot);

    surface.ClearCalls();
    MoveTo(hot ? Centre(box->MoreRect()) : CellCentre(2));
    const auto frame = CallsAt("Rectangle", box->MoreRect()).at(0);
    EXPECT_EQ((Args{frame.ForeColor, frame.FillStyle}), (Args{hot ? sys::ButtonShadow : sys::ButtonFace, fill::Transparent}));
    EXPECT_TRUE(box->MoreHot());
  }
}

const Lines kKeys{"AllowAutomatic", "AllowMoreColors", "Color", "IsAutomatic",
                  "AutomaticText",  "MoreColorsText",  "AutoColor", "PickStyle"};

class ColorBoxProperties : public ColorBoxHarness {
 protected:
  // Every property, read back in the order of the bag keys.
  Lines Values() const {
    return {std::to_string(box->AllowAutomatic()), std::to_string(box->AllowMoreColors()),
            text::Hex(box->Color()),               std::to_string(box->IsAutomatic()),
            box->AutomaticText(),                  box->MoreColorsText(),
            text::Hex(box->AutoColor()),           std::to_string(box->PickStyle())};
  }
  const Lines defaults_{"1", "1", "663300", "1", "Automatic", "More Colors...", "80000010", "0"};
};

TEST_F(ColorBoxProperties, NewControlStartsWithTheInitialValuesPaintedAndSized) {
  EXPECT_EQ(Values(), defaults_);
  EXPECT_EQ(std::tuple(box->ColorName(), box->FocusZone(), site.WidthTwips, Resizes),
            std::tuple("", focuszone::Automatic, 146 * 15, 1));
  EXPECT_EQ(std::pair(box->Timer1().Interval(), box->Timer1().Enabled()), std::pair(500, false));
  box->Refresh();  // Resize comes last, under the event guard, after the drawing is shown
  EXPECT_EQ(Guarded, std::vector<bool>{true});
  EXPECT_EQ(surface.Calls.back().Op, "Refresh");
  surface.ClearCalls();
  box->SetIsAutomatic(false);  // only stores: no repaint, no notification
  EXPECT_FALSE(box->IsAutomatic());
  EXPECT_TRUE(surface.Calls.empty());
  EXPECT_TRUE(site.Changed.empty());
}

struct Setter {
  const char* label;
  std::function<void(ColorBox&)> set;
};

class ColorBoxSetters : public ColorBoxProperties, public ::testing::WithParamInterface<Setter> {};

// The same setter again once the text height no longer fits 32 bits: its repaint fails,
// and it still notifies.
TEST_P(ColorBoxSetters, SetterRepaintsAndNotifiesWithItsOwnLabelEvenWhenTheRepaintFails) {
  GetParam().set(*box);
  EXPECT_EQ(Resizes, 2);
  surface.LineHeight = 3e9;
  GetParam().set(*box);
  EXPECT_EQ(site.Changed, (Lines{GetParam().label, GetParam().label}));
  EXPECT_EQ(host.Messages.Prompts().at(0), "Error Number: 6\r\nModule: ColorBox\r\nProcedure: GetTextHeight\r\n\r\nOverflow\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    EverySetter, ColorBoxSetters,
    ::testing::Values(Setter{"PickStyle [Let]", [](ColorBox& b) { b.SetPickStyle(cpsPalette40); }},
                      Setter{"AutoColor [Let]", [](ColorBox& b) { b.SetAutoColor(0xFF); }},
                      Setter{"AutomaticText [Let]", [](ColorBox& b) { b.SetAutomaticText("Auto"); }},
                      Setter{"MoreColorsText [Let]", [](ColorBox& b) { b.SetMoreColorsText("More"); }},
                      Setter{"Color [Let]", [](ColorBox& b) { b.SetColor(0xFF); }},
                      Setter{"AllowAutomatic [Let]", [](ColorBox& b) { b.SetAllowAutomatic(false); }},
                      Setter{"AllowMoreColors [Let]", [](ColorBox& b) { b.SetAllowMoreColors(false); }}));

TEST_F(ColorBoxProperties, EightKeysRoundTripInOrderAndDefaultsAreLeftOut) {
  MemoryPropertyBag fresh;
  box->UserControl_WriteProperties(fresh);
  EXPECT_EQ(fresh.WriteOrder, kKeys);
  EXPECT_TRUE(fresh.Values.empty());

  box->SetAllowAutomatic(false);
  box->SetAllowMoreColors(false);
  box->SetColor(0xFF);
  box->SetIsAutomatic(false);
  box->SetAutomaticText("Auto");
  box->SetMoreColorsText("More");
  box->SetAutoColor(sys::ButtonFace);
  box->SetPickStyle(cpsPalette40);
  const Lines changed = Values();
  MemoryPropertyBag bag;
  box->UserControl_WriteProperties(bag);
  EXPECT_EQ(bag.Values.size(), 8u);
  box->UserControl_InitProperties();
  EXPECT_EQ(Values(), defaults_);
  MoveTo(CellCentre(5));
  box->UserControl_ReadProperties(bag);
  EXPECT_EQ(bag.ReadOrder, kKeys);
  EXPECT_EQ(Values(), changed);
  EXPECT_EQ(box->Cells()->Count(), 40);
  EXPECT_EQ(box->FocusZone(), focuszone::Automatic);
}

// Creation has already loaded the standard palette, so an unknown style read from a
// form keeps those 16 cells in rows of 8 instead of dividing by a column count of 0.
TEST_F(ColorBoxProperties, AnUnknownStyleReadFromAFormKeepsThePalette) {
  MemoryPropertyBag bag;
  bag.Values["PickStyle"] = Variant(std::int32_t{99});
  box->UserControl_ReadProperties(bag);
  EXPECT_EQ(box->PickStyle(), 99);
  EXPECT_EQ(box->Cells()->Count(), 16);
  EXPECT_EQ(box->Columns(), 8);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(ColorBoxProperties, ExtentTooLargeForTwipsIsReportedByRefresh) {
  surface.LineHeight = 2e8;
  box->Refresh();
  EXPECT_EQ(host.Messages.Prompts(), (Lines{"Error Number: 6\r\nModule: ColorBox\r\nProcedure: Refresh\r\n\r\nOverflow\r\n"}));
}

TEST_F(ColorBoxProperties, ResizeByTheHostIsAnsweredWithTheSurfaceExtent) {
  site.Size(15, 15);
  box->UserControl_Resize();
  EXPECT_EQ(site.WidthTwips, surface.ScaleWidth() * 15);
  EXPECT_EQ(site.HeightTwips, surface.ScaleHeight() * 15);
}

TEST_F(ColorBoxProperties, TerminateReleasesTheCellsAndDestructionLetsGoOfTheSurface) {
  MoveTo(CellCentre(2));
  const auto cell = box->Cells()->Item(2);
  box->UserControl_Terminate();
  EXPECT_EQ(box->Cells(), nullptr);
  EXPECT_EQ(box->HotCell(), nullptr);
  EXPECT_EQ(cell->Parent(), nullptr);
  box.reset();
  EXPECT_EQ(surface.Listener(), nullptr);
  EXPECT_TRUE(host.Timers.Live().empty());
  EXPECT_TRUE(host.Messages.Shown.empty());
}

}  // namespace
}  // namespace lumo
