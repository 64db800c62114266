#pragma once

#include <vector>

#include "colormodel/Geometry.h"

namespace LumoColorCombo::host {

// A run of pixels on one row: columns First up to, not including, Last.
struct PixelRun {
  int Y = 0;
  int First = 0;
  int Last = 0;
  friend bool operator==(const PixelRun&, const PixelRun&) = default;
};

// The library's rules for which pixels a line or a filled polygon covers, on whole
// pixel coordinates (pixel (x, y) is the square whose top-left corner is (x, y)).
class Rasterizer {
 public:
  // The pixels of a one-pixel line, starting with `from` and stopping before `to`.
  // Bresenham's walk, with ties between two candidate pixels settled by the direction
  // of travel as the library's pixel rules settle them, so a line drawn backwards covers the
  // same pixels as forwards (apart from the end point swap).
  static std::vector<lumo::Point> line(lumo::Point from, lumo::Point to);

  // The pixels inside a polygon under the alternate (even-odd) rule, for the rows
  // firstRow up to lastRow (exclusive). A pixel is inside when its top-left corner is:
  // the left and top edges belong to the polygon, the right and bottom ones do not, so
  // the fill never pokes beyond the outline drawn over it.
  static std::vector<PixelRun> polygonInterior(const std::vector<lumo::Point>& points, int firstRow, int lastRow);

 private:
  static bool tiesStepMinor(long long dx, long long dy);
};

}  // namespace LumoColorCombo::host
