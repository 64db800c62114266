#include "qt/PixelCanvas.h"

#include <algorithm>
#include <cmath>

#include "qt/Rasterizer.h"

namespace LumoColorCombo::host {

// The image is detached once here; the rows are then reached through its bits, not
// through scanLine, which checks for sharing on every call.
PixelCanvas::PixelCanvas(QImage& image)
    : image_(image), ratio_(image.devicePixelRatio()), bits_(image.bits()), stride_(image.bytesPerLine()) {}

QRgb* PixelCanvas::row(int y) const { return reinterpret_cast<QRgb*>(bits_ + static_cast<qsizetype>(y) * stride_); }

int PixelCanvas::toDevice(int logical) const {
  if (ratio_ == 1.0) return logical;
  return static_cast<int>(std::lround(logical * ratio_));
}

void PixelCanvas::fillDevice(int x0, int y0, int x1, int y1, QRgb color) {
  x0 = std::max(x0, 0);
  y0 = std::max(y0, 0);
  x1 = std::min(x1, image_.width());
  y1 = std::min(y1, image_.height());
  if (x0 >= x1 || y0 >= y1) return;
  const QRgb opaque = color | 0xFF000000u;
  for (int y = y0; y < y1; ++y) {
    QRgb* const pixels = row(y);
    std::fill(pixels + x0, pixels + x1, opaque);
  }
}

void PixelCanvas::invertDevice(int x0, int y0, int x1, int y1) {
  x0 = std::max(x0, 0);
  y0 = std::max(y0, 0);
  x1 = std::min(x1, image_.width());
  y1 = std::min(y1, image_.height());
  for (int y = y0; y < y1; ++y) {
    QRgb* const pixels = row(y);
    for (int x = x0; x < x1; ++x) pixels[x] ^= 0x00FFFFFFu;
  }
}

void PixelCanvas::fillRect(int left, int top, int right, int bottom, QRgb color) {
  if (left >= right || top >= bottom) return;
  fillDevice(toDevice(left), toDevice(top), toDevice(right), toDevice(bottom), color);
}

void PixelCanvas::plot(int x, int y, QRgb color, int penWidth) {
  const int width = std::max(penWidth, 1);
  const int left = x - width / 2;
  const int top = y - width / 2;
  fillRect(left, top, left + width, top + width, color);
}

void PixelCanvas::straightLine(lumo::Point from, lumo::Point to, QRgb color, int penWidth) {
  // A horizontal or vertical line is one run: from the start up to the end, or, drawn
  // backwards, from just after the end up to and including the start.
  const int width = std::max(penWidth, 1);
  const int before = width / 2;
  const int after = width - before - 1;
  if (from.Y == to.Y) {
    const int first = from.X <= to.X ? from.X : to.X + 1;
    const int last = from.X <= to.X ? to.X : from.X + 1;
    if (first < last) fillRect(first - before, from.Y - before, last + after, from.Y + 1 + after, color);
  } else {
    const int first = from.Y <= to.Y ? from.Y : to.Y + 1;
    const int last = from.Y <= to.Y ? to.Y : from.Y + 1;
    fillRect(from.X - before, first - before, from.X + 1 + after, last + after, color);
  }
}

void PixelCanvas::line(lumo::Point from, lumo::Point to, QRgb color, int penWidth) {
  if (from.X == to.X || from.Y == to.Y) {
    straightLine(from, to, color, penWidth);
    return;
  }
  Rasterizer::line(from, to, [&](int x, int y) { plot(x, y, color, penWidth); });
}

void PixelCanvas::invertCheckerboard(int left, int top, int right, int bottom) {
  // Clipping first keeps a rectangle far off the image from walking empty rows.
  left = std::max(left, 0);
  top = std::max(top, 0);
  right = std::min(right, static_cast<int>(std::ceil(image_.width() / ratio_)));
  bottom = std::min(bottom, static_cast<int>(std::ceil(image_.height() / ratio_)));
  for (int y = top; y < bottom; ++y) {
    // The first column on this row whose x + y is even.
    const int first = ((left + y) & 1) == 0 ? left : left + 1;
    for (int x = first; x < right; x += 2) {
      invertDevice(toDevice(x), toDevice(y), toDevice(x + 1), toDevice(y + 1));
    }
  }
}

}  // namespace LumoColorCombo::host
