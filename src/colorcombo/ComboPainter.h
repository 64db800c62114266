#pragma once

#include <cstdint>
#include <string>

#include "colormodel/Geometry.h"
#include "colormodel/Picture.h"
#include "colormodel/Types.h"

namespace lumo {

class DrawingSurface;

// The pen-and-brush work of a ColorCombo on its surface: the drop button, the three
// frames and the colour bar. Each call sets the surface state it needs and draws; the
// control decides what to draw and keeps the state (sizes, style, pressed look).
class ComboPainter {
 public:
  // The arrow icon: 16 x 16, transparent but for a black triangle in its top left
  // corner (five pixels, then three, then one).
  static constexpr std::int32_t ArrowSize = 16;
  static const Picture& Arrow();

  // What the colour bar shows, worked out by the control.
  struct ColorBar {
    Rect bar;             // the area the bar clears
    Rect swatch;          // the colour box: a square at the left end, or the whole bar
    OLE_COLOR back = 0;   // the control's BackColor
    OLE_COLOR swatchColor = 0;
    bool boxed = true;    // draw the colour box at all
    std::string text;     // drawn right of the square; empty draws none
    OLE_COLOR textColor = 0;
    bool focus = false;   // the focus mark round the bar
  };

  explicit ComboPainter(DrawingSurface& surface) : surface_(surface) {}

  // The button face, the optional etched separator left of it, the raised or sunken
  // edge and the arrow centred in it.
  void DropButton(const Rect& button, bool pressed, bool separator);
  // The raised edge round the whole surface (cscDropDown).
  void RaisedEdge();
  // The four pairs of lines of a sunken field (cscCombobox) or a raised button
  // (cscButton, cscButtonNoText), `width` x `height` pixels.
  void SunkenField(std::int32_t width, std::int32_t height);
  void RaisedButton(std::int32_t width, std::int32_t height);
  void Bar(const ColorBar& look);

 private:
  // Outer top/left, inner top/left, outer bottom/right, inner bottom/right.
  void FourPairs(std::int32_t width, std::int32_t height, OLE_COLOR outerTopLeft, OLE_COLOR innerTopLeft,
                 OLE_COLOR outerBottomRight, OLE_COLOR innerBottomRight);
  void Line(OLE_COLOR pen, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2);

  DrawingSurface& surface_;
};

}  // namespace lumo
