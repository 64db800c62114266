#pragma once

#include <QImage>
#include <QPoint>

#include "colormodel/Types.h"

// Where to press on a drawn palette grid without knowing its layout: the middle of a
// colour cell is a patch of one colour other than the surface's background, and the
// cells fill the grid's centre, away from the buttons above and below it.
namespace GridSpots {

inline bool UniformAround(const QImage& image, QPoint at, QRgb background) {
  const QRgb colour = image.pixel(at);
  if (colour == background) return false;
  for (int dy = -3; dy <= 3; ++dy) {
    for (int dx = -3; dx <= 3; ++dx) {
      if (image.pixel(at + QPoint(dx, dy)) != colour) return false;
    }
  }
  return true;
}

// Offsets 0, 1, -1, 2, -2, ... up to `reach`.
inline int Outward(int step) { return step % 2 == 1 ? (step + 1) / 2 : -(step / 2); }

// The cell spot nearest the image's centre, in logical pixels; (-1, -1) if there is none.
inline QPoint CellSpot(const QImage& image) {
  const QRgb background = image.pixel(0, 0);
  const QPoint centre = image.rect().center();
  for (int row = 0; row < image.height(); ++row) {
    for (int column = 0; column < image.width(); ++column) {
      const QPoint at = centre + QPoint(Outward(column), Outward(row));
      if (!image.rect().adjusted(3, 3, -3, -3).contains(at)) continue;
      if (UniformAround(image, at, background)) return at / image.devicePixelRatio();
    }
  }
  return {-1, -1};
}

// The colour value of a pixel, as the controls report colours (red in the low byte).
inline lumo::OLE_COLOR ColorAt(const QImage& image, QPoint logical) {
  const QColor colour(image.pixel(logical * image.devicePixelRatio()));
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

}  // namespace GridSpots
