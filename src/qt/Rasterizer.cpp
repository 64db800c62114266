#include "qt/Rasterizer.h"

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

void Rasterizer::crossingSides(const std::vector<lumo::Point>& points, std::vector<Side>& sides) {
  sides.reserve(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    const lumo::Point& a = points[i];
    const lumo::Point& b = points[i + 1 < points.size() ? i + 1 : 0];
    if (a.Y != b.Y) sides.push_back({a, b, std::min(a.Y, b.Y), std::max(a.Y, b.Y)});
  }
}

int Rasterizer::ceilCrossing(const Side& side, int y) {
  // The crossing is a.X + (y - a.Y) * (b.X - a.X) / (b.Y - a.Y), a fraction with the
  // side's height as denominator; its ceiling is taken in whole numbers, exactly.
  long long rise = static_cast<long long>(side.b.Y) - side.a.Y;
  long long run = (static_cast<long long>(y) - side.a.Y) * (static_cast<long long>(side.b.X) - side.a.X);
  if (rise < 0) {
    rise = -rise;
    run = -run;
  }
  // Division truncates toward zero, which is the ceiling for a negative quotient.
  long long steps = run / rise;
  if (run % rise != 0 && run > 0) ++steps;
  return static_cast<int>(side.a.X + steps);
}

void Rasterizer::sortCrossings(int* crossings, int count) {
  for (int i = 1; i < count; ++i) {
    const int value = crossings[i];
    int j = i;
    for (; j > 0 && crossings[j - 1] > value; --j) crossings[j] = crossings[j - 1];
    crossings[j] = value;
  }
}

}  // namespace LumoColorCombo::host
