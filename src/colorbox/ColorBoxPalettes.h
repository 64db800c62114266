#pragma once

#include <cstdint>
#include <string>

namespace lumo {

class CColorboxCol;
class CColorboxEl;
class CommonGlobals;

// The fifteen palettes of a ColorBox and the two layout facts that come with them:
// the number of cells per grid row and the row-gap marker (";" row ";", naming the
// zero-based row before which a 4-pixel gap is drawn).
//
// Every load empties the collection first and adds its cells in grid order, each
// with position (0, 0) and not large: a cell's place follows only from its index and
// the column count. A cell without a name in its table comes named after its colour
// (DefaultName). The cells of a palette share faces built once per process, so a grid
// holds only its cells' places. The marker is written only by the three variants with
// a grey row and is never cleared, so a control keeps the gap (and the height it adds)
// after it switches to another style. Kept as designed; the grid code relies on nothing else.
class ColorBoxPalettes {
 public:
  explicit ColorBoxPalettes(const CommonGlobals& errors) : errors_(errors) {}

  // Loads the palette of `style` (a ComboPickStyles value) into `cells`. Any other
  // value loads nothing and answers false: cells, columns and marker stay as they were.
  bool Load(std::int32_t style, CColorboxCol& cells);

  std::int32_t Columns() const { return columns_; }
  const std::string& RowGapMarker() const { return marker_; }

  // "#RRGGBB (RR,GG,BB)": the name, and so the tooltip, of a cell its table leaves unnamed.
  static std::string DefaultName(const CColorboxEl& cell);

 private:
  const CommonGlobals& errors_;
  std::int32_t columns_ = 0;
  std::string marker_;
};

}  // namespace lumo
