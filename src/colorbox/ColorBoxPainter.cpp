#include "colorbox/ColorBoxPainter.h"

#include "colorbox/ColorBoxLayout.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/DrawingSurface.h"

namespace lumo {

Rect ColorBoxPainter::FrameArea(std::int32_t left, std::int32_t top) {
  // Rectangle and DrawEdge exclude the right and bottom edge: 18 x 18 pixels.
  return {left - FrameMargin, top - FrameMargin, left + ColorBoxLayout::SquareSize + FrameMargin,
          top + ColorBoxLayout::SquareSize + FrameMargin};
}

void ColorBoxPainter::EtchedLine(std::int32_t x1, std::int32_t x2, std::int32_t y) {
  surface_.SetForeColor(sys::ButtonShadow);
  surface_.MoveToEx(x1, y);
  surface_.LineTo(x2, y);
  surface_.SetForeColor(sys::ButtonHighlight);
  surface_.MoveToEx(x1, y + 1);
  surface_.LineTo(x2, y + 1);
}

void ColorBoxPainter::CellFrame(std::int32_t left, std::int32_t top, bool hot, bool selected) {
  const Rect area = FrameArea(left, top);
  surface_.SetFillColor(surface_.BackColor());
  surface_.SetForeColor(surface_.BackColor());
  surface_.SetFillStyle(fill::Solid);
  surface_.Rectangle(area.Left, area.Top, area.Right, area.Bottom);
  surface_.SetFillStyle(fill::Transparent);
  if (hot) {
    surface_.DrawEdge(area, edge::RaisedInner, edge::AllSides);
  } else if (selected) {
    surface_.DrawEdge(area, edge::SunkenOuter, edge::AllSides);
  }
}

Rect ColorBoxPainter::Square(std::int32_t left, std::int32_t top, OLE_COLOR color) {
  const Rect square{left, top, left + ColorBoxLayout::SquareSize, top + ColorBoxLayout::SquareSize};
  surface_.SetFillColor(color);
  surface_.SetFillStyle(fill::Solid);
  surface_.SetForeColor(sys::ButtonShadow);
  surface_.Rectangle(square.Left, square.Top, square.Right, square.Bottom);
  surface_.SetFillStyle(fill::Transparent);
  return square;
}

void ColorBoxPainter::AutoButton(const Rect& button, bool hot, const std::string& caption) {
  surface_.SetFillColor(hot ? sys::ButtonShadow : sys::ButtonFace);
  surface_.SetForeColor(sys::ButtonShadow);
  surface_.SetFillStyle(fill::Solid);
  surface_.Rectangle(button.Left, button.Top, button.Right, button.Bottom);
  surface_.SetFillStyle(fill::Transparent);
  // The caption sits 2 pixels below the box's top line.
  Rect text = button;
  text.Top = checked::Add(text.Top, 2);
  surface_.SetForeColor(hot ? sys::HighlightText : sys::ButtonText);
  surface_.DrawTextA(caption, text, textformat::Center);
}

void ColorBoxPainter::MoreColorsFrame(const Rect& button, bool hot) {
  // The brush is left alone: the swatch and caption inside must survive.
  surface_.SetForeColor(hot ? sys::ButtonShadow : sys::ButtonFace);
  surface_.Rectangle(button.Left, button.Top, button.Right, button.Bottom);
  surface_.Refresh();
}

void ColorBoxPainter::MoreColorsFace(std::int32_t x, std::int32_t y, std::int32_t textHeight,
                                     const std::string& caption) {
  const Rect swatch{x, y, x + SwatchWidth, checked::Sub(checked::Add(y, textHeight), 4)};
  surface_.SetFillColor(sys::HighlightText);
  surface_.SetForeColor(sys::HighlightText);
  surface_.SetFillStyle(fill::Solid);
  surface_.Rectangle(swatch.Left, swatch.Top, swatch.Right, swatch.Bottom);
  surface_.SetFillStyle(fill::Transparent);
  surface_.SetForeColor(sys::ButtonShadow);
  surface_.Rectangle(swatch.Left + 1, swatch.Top + 1, swatch.Right - 1, swatch.Bottom - 1);
  // The caption's box runs a full surface width past the grid's left edge; only the
  // surface's own clipping ends it.
  const Rect text{swatch.Right + 4, y, checked::Add(x, surface_.ScaleWidth()), checked::Add(y, textHeight)};
  surface_.SetForeColor(sys::ButtonText);
  surface_.DrawTextA(caption, text, textformat::LeftTop);
}

}  // namespace lumo
