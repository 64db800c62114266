#include "colorhexagon/HexagonGeometry.h"

#include <cstddef>

#include "colormodel/CheckedMath.h"

namespace lumo {
namespace {

// A hexagon's shape relative to its origin: half width at the top point, full
// width, height of the vertical sides, and the depth of the slanted top and bottom.
struct Shape {
  std::int32_t Apex;
  std::int32_t Right;
  std::int32_t Side;
  std::int32_t Slant;
};

constexpr Shape kSmall{9, 17, 10, 4};
constexpr Shape kLarge{18, 35, 20, 8};

// Per-vertex inward moves of the selection mark, in vertex order.
constexpr Point kMarkInset[HexagonGeometry::VertexCount] = {{3, 0},  {0, 2},  {-2, 0}, {-2, 0},
                                                            {0, -2}, {0, -2}, {3, 0}};

}  // namespace

std::int32_t HexagonGeometry::RowOffset(std::int32_t row) {
  switch (row) {
    case 0: case 12: return 54;
    case 1: case 11: case 15: return 45;
    case 2: case 10: case 14: return 36;
    case 3: case 9: return 27;
    case 4: case 8: return 18;
    case 5: case 7: return 9;
    case 16: return 81;
    default: return 0;
  }
}

Point HexagonGeometry::Origin(std::int32_t x, std::int32_t y) {
  return {checked::Add(checked::Mul(x, Pitch), RowOffset(y)),
          checked::Add(checked::Mul(y, RowHeight), TopMargin)};
}

std::vector<Point> HexagonGeometry::Outline(std::int32_t x, std::int32_t y, bool large) {
  const Point o = Origin(x, y);
  const Shape s = large ? kLarge : kSmall;
  const std::int32_t bottom = o.Y + s.Side + s.Slant;
  return {{o.X, o.Y},
          {o.X + s.Apex, o.Y - s.Slant},
          {o.X + s.Right, o.Y},
          {o.X + s.Right, o.Y + s.Side},
          {o.X + s.Apex + 1, bottom},
          {o.X + s.Apex, bottom},
          {o.X, o.Y + s.Side}};
}

Rect HexagonGeometry::Bounds(std::int32_t x, std::int32_t y, bool large) {
  const Point o = Origin(x, y);
  const Shape s = large ? kLarge : kSmall;
  return {o.X, o.Y, o.X + s.Right, o.Y + s.Side};
}

std::vector<Point> HexagonGeometry::SelectionMark(const std::vector<Point>& outline) {
  std::vector<Point> mark = outline;
  for (std::size_t i = 0; i < mark.size() && i < static_cast<std::size_t>(VertexCount); ++i) {
    mark[i].X += kMarkInset[i].X;
    mark[i].Y += kMarkInset[i].Y;
  }
  return mark;
}

}  // namespace lumo
