#pragma once

#include <array>
#include <cstdint>

#include "colormodel/CellFace.h"
#include "colormodel/Types.h"

namespace lumo {

// One entry of the honeycomb: what LoadHexColors hands to CColorboxCol::Add.
struct HexagonCellEntry {
  const char* Name;  // "" for the unnamed cells
  OLE_COLOR Color;
  std::int32_t X;  // position within its row, from the left end
  std::int32_t Y;  // row, 0 at the top
  bool IsLarge;
};

// The fixed colour table of the hexagon control: 127 small cells in thirteen rows
// of 7 to 13, then the grey row of 8 with a large white and a large black cell.
// The order is the insertion order, so an entry's position + 1 is the cell's Index.
//
// The table is kept exactly as it is on purpose, hosts rely on it: the centre white
// is "White" while the large white is nameless, pure red has no name, FF6666 stands
// twice (row 9 and row 10, both at X 6), and the magenta cell is named "Fuchsia".
class HexagonTable {
 public:
  static constexpr std::int32_t HoneycombCount = 127;
  static constexpr std::int32_t CellCount = 135;

  static const std::array<HexagonCellEntry, CellCount>& Cells();
  // The same entries as cell faces, built once and shared by every honeycomb.
  static const FaceTable& Faces();
};

}  // namespace lumo
