#pragma once

#include <cstdint>
#include <vector>

#include "colormodel/Geometry.h"

namespace lumo {

// Where each hexagon of the honeycomb sits, in pixels of the control's surface.
// Nothing scales: the cells are drawn at these fixed positions whatever the size.
class HexagonGeometry {
 public:
  static constexpr std::int32_t Pitch = 18;      // horizontal distance between cells
  static constexpr std::int32_t RowHeight = 15;  // rows overlap: a small cell is 14 tall
  static constexpr std::int32_t TopMargin = 4;   // so row 0's top points touch pixel 0
  static constexpr std::int32_t VertexCount = 7;

  // Left shift of a row. Steps of half a pitch make neighbouring rows interlock;
  // row 16 has an offset although no cell uses it, unknown rows get 0.
  static std::int32_t RowOffset(std::int32_t row);

  // Left pixel and reference top of the outline of the cell at grid position (x, y).
  static Point Origin(std::int32_t x, std::int32_t y);

  // The seven vertices handed to one Polygon call. The bottom point is two vertices
  // one pixel apart (a two-pixel flat bottom); the top is a single point.
  static std::vector<Point> Outline(std::int32_t x, std::int32_t y, bool large);

  // The stored hit-test rectangle: only the box of the vertical sides (vertices 1,
  // 3 and 4), not the slanted top and bottom. Right and Bottom are inclusive.
  static Rect Bounds(std::int32_t x, std::int32_t y, bool large);

  // The selection mark: the outline pulled in by 3 pixels on the left and only 2 on
  // the right, top and bottom. The asymmetry is kept on purpose: the mark's pixels are exact.
  static std::vector<Point> SelectionMark(const std::vector<Point>& outline);
};

}  // namespace lumo
