#include <gtest/gtest.h>

#include <vector>

#include "ColorBoxHarness.h"
#include "colorbox/ColorBoxPainter.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::kTextHeight;
using Args = std::vector<std::int32_t>;

class ColorBoxDrawing : public ColorBoxHarness {
 protected:
  Rect Bounds(std::int32_t i) const {
    const auto c = box->Cells()->Item(i);
    return {c->BoundLeft(), c->BoundTop(), c->BoundRight(), c->BoundBottom()};
  }
  Rect Frame(std::int32_t i) const { return ColorBoxPainter::FrameArea(Bounds(i).Left, Bounds(i).Top); }
};

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
  EXPECT_EQ(lines[0].Args, (Args{1, 39, 139, 39}));
  EXPECT_EQ(lines[0].ForeColor, sys::ButtonShadow);
  EXPECT_EQ(lines[1].Args, (Args{1, 40, 139, 40}));
  EXPECT_EQ(lines[1].ForeColor, sys::ButtonHighlight);
  EXPECT_TRUE(Frame(9).Bottom <= 39 && Frame(17).Top > 40);
}

TEST_F(ColorBoxDrawing, EverySquareIsErasedFilledOutlinedAndRemembersItsBounds) {
  surface.ClearCalls();
  box->SetPickStyle(cpsPalette40);
  for (std::int32_t i = 1; i <= 40; ++i) {
    const Rect b = Bounds(i);
    EXPECT_EQ(b.Right - b.Left, 12);
    const auto squares = CallsAt("Rectangle", b);
    ASSERT_EQ(squares.size(), 1u) << i;
    EXPECT_EQ(squares[0].FillColor, box->Cells()->Item(i)->Color());
    EXPECT_EQ(squares[0].ForeColor, sys::ButtonShadow);
    EXPECT_EQ(squares[0].FillStyle, fill::Solid);
    EXPECT_EQ(CallsAt("Rectangle", Frame(i)).at(0).FillColor, sys::ButtonFace);
  }
}

TEST_F(ColorBoxDrawing, EveryCellOfTheSelectedColourGetsASunkenFrameAndTheHotCellARaisedOne) {
  struct Case {
    std::int32_t style, cell, frames;
  };
  for (const Case c : {Case{cpsStandard, 14, 1}, Case{cpsPalette256, 1, 41}, Case{cpsPalette256, 161, 2},
                       Case{cpsPalette256WithBW, 257, 2}}) {
    box->SetPickStyle(c.style);
    surface.ClearCalls();
    box->SetColor(box->Cells()->Item(c.cell)->Color());
    EXPECT_EQ(surface.CountOf("DrawEdge"), c.frames) << c.style << "/" << c.cell;
    EXPECT_EQ(CallsAt("DrawEdge", Frame(c.cell)).at(0).Args, (Args{Frame(c.cell).Left, Frame(c.cell).Top,
                                                                  Frame(c.cell).Right, Frame(c.cell).Bottom,
                                                                  edge::SunkenOuter, edge::AllSides}));
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

}  // namespace
}  // namespace lumo
