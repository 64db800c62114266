#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "colormodel/Geometry.h"

namespace LumoColorCombo::host {

// The library's rules for which pixels a line or a filled polygon covers, on whole
// pixel coordinates (pixel (x, y) is the square whose top-left corner is (x, y)).
// Both walks hand each pixel or run to a visitor as they find it: a surface fills
// hundreds of polygons per redraw, and a list per side or per polygon would cost more
// than the pixels themselves.
class Rasterizer {
 public:
  // The pixels of a one-pixel line, starting with `from` and stopping before `to`, each
  // handed to `visit(x, y)`. Bresenham's walk, with ties between two candidate pixels
  // settled by the direction of travel as the library's pixel rules settle them, so a
  // line drawn backwards covers the same pixels as forwards (apart from the end point swap).
  template <class Visit>
  static void line(lumo::Point from, lumo::Point to, Visit&& visit);

  // The pixels inside a polygon under the alternate (even-odd) rule, for the rows
  // firstRow up to lastRow (exclusive), handed row by row to `visit(y, first, last)` as
  // runs of columns first up to, not including, last. A pixel is inside when its
  // top-left corner is: the left and top edges belong to the polygon, the right and
  // bottom ones do not, so the fill never pokes beyond the outline drawn over it.
  template <class Visit>
  static void polygonInterior(const std::vector<lumo::Point>& points, int firstRow, int lastRow, Visit&& visit);

 private:
  // A side that crosses rows first .. last - 1, kept in drawing order (from a to b).
  // Half-open in y, so a vertex shared by two sides is counted once.
  struct Side {
    lumo::Point a;
    lumo::Point b;
    int first;
    int last;
  };

  static bool tiesStepMinor(long long dx, long long dy);
  // The sides that cross any row; horizontal sides never do.
  static void crossingSides(const std::vector<lumo::Point>& points, std::vector<Side>& sides);
  // The first whole column at or right of where `side` crosses row y.
  static int ceilCrossing(const Side& side, int y);
  // Sorts the few crossings of one row in place.
  static void sortCrossings(int* crossings, int count);
};

template <class Visit>
void Rasterizer::line(lumo::Point from, lumo::Point to, Visit&& visit) {
  const long long dx = static_cast<long long>(to.X) - from.X;
  const long long dy = static_cast<long long>(to.Y) - from.Y;
  const long long major = std::max(std::llabs(dx), std::llabs(dy));
  const long long minor = std::min(std::llabs(dx), std::llabs(dy));
  const bool xMajor = std::llabs(dx) > std::llabs(dy);
  const int xStep = dx < 0 ? -1 : 1;
  const int yStep = dy < 0 ? -1 : 1;
  const int majorStep = xMajor ? xStep : yStep;
  const int minorStep = xMajor ? yStep : xStep;
  const long long bias = tiesStepMinor(dx, dy) ? 1 : 0;

  lumo::Point at = from;
  std::int32_t& majorAxis = xMajor ? at.X : at.Y;
  std::int32_t& minorAxis = xMajor ? at.Y : at.X;
  long long error = 2 * minor - major;
  for (long long i = 0; i < major; ++i) {
    visit(at.X, at.Y);
    if (error + bias > 0) {
      minorAxis += minorStep;
      error += 2 * (minor - major);
    } else {
      error += 2 * minor;
    }
    majorAxis += majorStep;
  }
}

template <class Visit>
void Rasterizer::polygonInterior(const std::vector<lumo::Point>& points, int firstRow, int lastRow, Visit&& visit) {
  if (points.size() < 3) return;
  const auto [low, high] = std::minmax_element(points.begin(), points.end(),
                                               [](const lumo::Point& a, const lumo::Point& b) { return a.Y < b.Y; });
  const int top = std::max(low->Y, firstRow);
  const int bottom = std::min(high->Y, lastRow);
  if (top >= bottom) return;
  std::vector<Side> sides;
  crossingSides(points, sides);
  std::vector<int> crossings(sides.size());
  for (int y = top; y < bottom; ++y) {
    int count = 0;
    for (const Side& side : sides) {
      if (side.first <= y && y < side.last) crossings[static_cast<std::size_t>(count++)] = ceilCrossing(side, y);
    }
    sortCrossings(crossings.data(), count);
    for (int i = 0; i + 1 < count; i += 2) {
      const int first = crossings[static_cast<std::size_t>(i)];
      const int last = crossings[static_cast<std::size_t>(i) + 1];
      if (last > first) visit(y, first, last);
    }
  }
}

}  // namespace LumoColorCombo::host
