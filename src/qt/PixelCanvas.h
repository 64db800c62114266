#pragma once

#include <QImage>
#include <QRgb>

#include "colormodel/Geometry.h"

namespace LumoColorCombo::host {

// Pixel-exact drawing in logical pixels on an opaque RGB32 image whose device pixel
// ratio may be above 1. Logical pixel x covers the device columns from round(x * ratio)
// up to round((x + 1) * ratio), so neighbouring pixels tile without gaps or overlaps at
// 1.5x as at 2x, and a one-pixel line stays one logical pixel wide and sharp.
// Everything is clipped to the image.
class PixelCanvas {
 public:
  explicit PixelCanvas(QImage& image);

  // Paints the pixels left..right-1 by top..bottom-1.
  void fillRect(int left, int top, int right, int bottom, QRgb color);
  // Paints the pen's footprint at a pixel: width 1 is the pixel itself; a wider pen is
  // a width-by-width square centred on it, its extra pixel (for even widths) lying
  // above and to the left, as a pen centred on whole-pixel coordinates covers.
  void plot(int x, int y, QRgb color, int penWidth);
  // A line from `from`, leaving out `to`, with a pen of the given width.
  void line(lumo::Point from, lumo::Point to, QRgb color, int penWidth);
  // Inverts every other pixel of the rectangle left..right-1 by top..bottom-1 in a
  // checkerboard anchored at the image origin: pixel (x, y) is inverted when x + y is
  // even. Inverting the same rectangle again restores it exactly.
  void invertCheckerboard(int left, int top, int right, int bottom);

 private:
  int toDevice(int logical) const;
  QRgb* row(int y) const;
  void fillDevice(int x0, int y0, int x1, int y1, QRgb color);
  void invertDevice(int x0, int y0, int x1, int y1);
  void straightLine(lumo::Point from, lumo::Point to, QRgb color, int penWidth);

  QImage& image_;
  double ratio_;
  uchar* bits_;
  qsizetype stride_;
};

}  // namespace LumoColorCombo::host
