#pragma once

#include <cstdint>
#include <string>

#include "colormodel/Geometry.h"
#include "colormodel/Types.h"

namespace lumo {

class DrawingSurface;

// The pen-and-brush work of a ColorBox: each call sets the surface state it needs,
// draws, and leaves the brush transparent so that a later frame-only rectangle (the
// More Colors frame is drawn "with the fill style as it stands") stays a frame and
// never paints over the button's swatch and text.
class ColorBoxPainter {
 public:
  // The raised or sunken frame reaches this far outside the square.
  static constexpr std::int32_t FrameMargin = 3;
  static constexpr std::int32_t SwatchWidth = 27;

  explicit ColorBoxPainter(DrawingSurface& surface) : surface_(surface) {}

  // The frame area round a square at (left, top): 3 pixels out on every side.
  static Rect FrameArea(std::int32_t left, std::int32_t top);

  // A shadow line at y and a highlight line under it, from x1 to x2.
  void EtchedLine(std::int32_t x1, std::int32_t x2, std::int32_t y);
  // Wipes the frame area of the cell whose square is at (left, top) with the background
  // colour, then draws the raised frame of the hot cell or else, when `selected`, the
  // sunken frame of a cell of the chosen colour.
  void CellFrame(std::int32_t left, std::int32_t top, bool hot, bool selected);
  // The colour square itself, outlined in button shadow; answers its inclusive bounds.
  Rect Square(std::int32_t left, std::int32_t top, OLE_COLOR color);
  // The Automatic button: filled box and centred caption, highlighted when hot.
  void AutoButton(const Rect& button, bool hot, const std::string& caption);
  // Only the frame of the More Colors button.
  void MoreColorsFrame(const Rect& button, bool hot);
  // The swatch box and caption of the More Colors button, whose top line is at y.
  void MoreColorsFace(std::int32_t x, std::int32_t y, std::int32_t textHeight, const std::string& caption);

 private:
  DrawingSurface& surface_;
};

}  // namespace lumo
