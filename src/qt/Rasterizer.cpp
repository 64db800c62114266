#include "qt/Rasterizer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace LumoColorCombo::host {

bool Rasterizer::tiesStepMinor(long long dx, long long dy) {
  // Where the ideal line passes exactly between two pixels, the library takes the
  // step in the minor direction early for lines running up-left of the main diagonals
  // and late for the others. Counted clockwise from the +x axis (y grows downwards),
  // the early octants are the 3rd, 5th, 6th and 8th.
  const bool xMajor = std::llabs(dx) > std::llabs(dy);
  if (dy > 0) return !xMajor && dx <= 0;  // 3rd octant
  if (xMajor) return true;                // 5th (dx < 0) and 8th (dx > 0)
  return dx < 0;                          // 6th
}

std::vector<lumo::Point> Rasterizer::line(lumo::Point from, lumo::Point to) {
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

  std::vector<lumo::Point> pixels;
  pixels.reserve(static_cast<std::size_t>(major));
  lumo::Point at = from;
  std::int32_t& majorAxis = xMajor ? at.X : at.Y;
  std::int32_t& minorAxis = xMajor ? at.Y : at.X;
  long long error = 2 * minor - major;
  for (long long i = 0; i < major; ++i) {
    pixels.push_back(at);
    if (error + bias > 0) {
      minorAxis += minorStep;
      error += 2 * (minor - major);
    } else {
      error += 2 * minor;
    }
    majorAxis += majorStep;
  }
  return pixels;
}

std::vector<PixelRun> Rasterizer::polygonInterior(const std::vector<lumo::Point>& points, int firstRow,
                                                  int lastRow) {
  std::vector<PixelRun> runs;
  if (points.size() < 3) return runs;
  const auto [low, high] = std::minmax_element(points.begin(), points.end(),
                                               [](const lumo::Point& a, const lumo::Point& b) { return a.Y < b.Y; });
  const int top = std::max(low->Y, firstRow);
  const int bottom = std::min(high->Y, lastRow);
  if (top >= bottom) return runs;
  // The sides that cross any row, each kept in drawing order (from a to b) so that
  // every crossing is computed exactly as written below; horizontal sides never cross.
  struct Side {
    lumo::Point a;
    lumo::Point b;
    int first;  // rows first .. last - 1 cross this side: half-open in y, so a vertex
    int last;   // shared by two sides is counted once
  };
  std::vector<Side> sides;
  sides.reserve(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    const lumo::Point& a = points[i];
    const lumo::Point& b = points[i + 1 < points.size() ? i + 1 : 0];
    if (a.Y != b.Y) sides.push_back({a, b, std::min(a.Y, b.Y), std::max(a.Y, b.Y)});
  }
  runs.reserve(static_cast<std::size_t>(bottom - top));
  std::vector<double> crossings;
  crossings.reserve(sides.size());
  for (int y = top; y < bottom; ++y) {
    crossings.clear();
    for (const Side& side : sides) {
      if (side.first <= y && y < side.last) {
        const lumo::Point& a = side.a;
        const lumo::Point& b = side.b;
        crossings.push_back(a.X + static_cast<double>(y - a.Y) * (b.X - a.X) / (b.Y - a.Y));
      }
    }
    std::sort(crossings.begin(), crossings.end());
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      const int first = static_cast<int>(std::ceil(crossings[i]));
      const int last = static_cast<int>(std::ceil(crossings[i + 1]));
      if (last > first) runs.push_back({y, first, last});
    }
  }
  return runs;
}

}  // namespace LumoColorCombo::host
