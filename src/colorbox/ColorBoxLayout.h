#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "colormodel/Geometry.h"

namespace lumo {

// The grid arithmetic of a ColorBox for one palette: how wide the grid is, how many
// rows it has, where the row gaps fall and where each cell's square goes. Pure
// 32-bit arithmetic, checked the platform's way: a column count of 0 is a division
// by zero (11) and an absurd size an overflow (6), both thrown to the caller's trap.
class ColorBoxLayout {
 public:
  static constexpr std::int32_t SquareSize = 12;
  static constexpr std::int32_t CellPitch = 18;
  static constexpr std::int32_t RowGap = 4;
  static constexpr std::int32_t Border = 8;

  ColorBoxLayout(std::int32_t columns, std::int32_t cellCount, std::string_view rowGapMarker)
      : columns_(columns), cellCount_(cellCount), marker_(rowGapMarker) {}

  // Occurrences of `sFind` in `sText`: the length removed by deleting every occurrence,
  // divided by the length of `sFind`. `lCompare` 1 ignores case. An empty `sFind`
  // is a division by zero.
  static std::int32_t StrCount(std::string_view sText, std::string_view sFind, std::int32_t lCompare);

  // 12 per square and 6 per gap between squares.
  static std::int32_t AreaWidth(std::int32_t columns);

  // Rows of the grid, the last one possibly partly filled.
  std::int32_t Rows() const;
  // Rows that are completely filled; only these can carry a gap line.
  std::int32_t FullRows() const;
  // The height the marker adds: 4 per ";" in it, so ";2;" adds 8 for its one gap.
  std::int32_t MarkerHeight() const;
  // The gap (4 or 0) above zero-based row `row`, and the sum of the gaps above it.
  std::int32_t GapBefore(std::int32_t row) const;
  std::int32_t GapsAbove(std::int32_t row) const;
  // GapsAbove of every row, 0 .. Rows() - 1, each summed from the one before: a grid
  // keeps it beside its cells instead of reading the marker again for each cell.
  std::vector<std::int32_t> GapsAboveRows() const;

  // The surface's extent in pixels for a text height and the buttons shown.
  Point SurfaceSize(std::int32_t textHeight, bool withAutomatic, bool withMoreColors) const;
  // Top left of the square of 1-based cell `index`, for a grid whose first row is at
  // `gridTop` and first column at `gridLeft`.
  Point CellOrigin(std::int32_t index, std::int32_t gridLeft, std::int32_t gridTop) const;
  // The same, taking the gaps of the rows `gapsAbove` covers from it (GapsAboveRows).
  Point CellOrigin(std::int32_t index, std::int32_t gridLeft, std::int32_t gridTop,
                   const std::vector<std::int32_t>& gapsAbove) const;
  // The y of each etched gap line when the grid's top area starts at `y`.
  std::vector<std::int32_t> GapLines(std::int32_t y) const;

 private:
  std::int32_t columns_;
  std::int32_t cellCount_;
  std::string marker_;
};

}  // namespace lumo
