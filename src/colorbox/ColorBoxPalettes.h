#pragma once

#include <cstdint>
#include <string>

namespace lumo {

class CColorboxCol;
class CommonGlobals;

// The fifteen palettes of a ColorBox and the two layout facts that come with them:
// the number of cells per grid row and the row-gap marker (";" row ";", naming the
// zero-based row before which a 4-pixel gap is drawn).
//
// Every loader empties the collection first and adds its cells in grid order, each
// with position (0, 0) and not large: a cell's place follows only from its index and
// the column count. The marker is written only by the three variants with a grey row
// and is never cleared, so a control keeps the gap (and the height it adds) after it
// switches to another style. Kept as designed; the grid code relies on nothing else.
class ColorBoxPalettes {
 public:
  explicit ColorBoxPalettes(const CommonGlobals& errors) : errors_(errors) {}

  // Loads the palette of `style` (a ComboPickStyles value) into `cells`. Any other
  // value loads nothing and answers false: cells, columns and marker stay as they were.
  bool Load(std::int32_t style, CColorboxCol& cells);

  std::int32_t Columns() const { return columns_; }
  const std::string& RowGapMarker() const { return marker_; }

 private:
  void LoadStandard16(CColorboxCol& cells, bool bWithBW);
  void LoadGreyScale256(CColorboxCol& cells);
  void LoadGreyScale16(CColorboxCol& cells);
  void LoadPalette256(CColorboxCol& cells, bool bWithBW);
  void LoadPalette48(CColorboxCol& cells, bool bWithBW);
  void LoadPalette40(CColorboxCol& cells);
  void LoadPaletteBlue(CColorboxCol& cells, std::int32_t lCount);
  void LoadPaletteGreen(CColorboxCol& cells, std::int32_t lCount);
  void LoadPaletteRed(CColorboxCol& cells, std::int32_t lCount);

  // One component ramp (0 to 255) in one of the three primaries.
  void LoadRamp(CColorboxCol& cells, std::int32_t lCount, std::int32_t componentShift);
  // The sixteen greys from white to near black, and the marker that puts a gap above them.
  void AddGreyRow(CColorboxCol& cells, const char* marker);

  const CommonGlobals& errors_;
  std::int32_t columns_ = 0;
  std::string marker_;
};

}  // namespace lumo
