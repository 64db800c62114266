#include "colorhexagon/HexagonTable.h"

#include <cstddef>
#include <memory>
#include <initializer_list>
#include <utility>
#include <vector>

namespace lumo {
namespace {

// Honeycomb rows, top to bottom, each from X = 0 upward. Colours are written red first,
// the way people read them; FromRedFirst turns them into the packed value.
const std::initializer_list<std::uint32_t> kRows[] = {
    {0x003366, 0x336699, 0x3366CC, 0x003399, 0x000099, 0x0000CC, 0x000066},
    {0x006666, 0x006699, 0x0099CC, 0x0066CC, 0x0033CC, 0x0000FF, 0x3333FF, 0x333399},
    {0x669999, 0x009999, 0x33CCCC, 0x00CCFF, 0x0099FF, 0x0066FF, 0x3366FF, 0x3333CC, 0x666699},
    {0x339966, 0x00CC99, 0x00FFCC, 0x00FFFF, 0x33CCFF, 0x3399FF, 0x6699FF, 0x6666FF, 0x6600FF,
     0x6600CC},
    {0x339933, 0x00CC66, 0x00FF99, 0x66FFCC, 0x66FFFF, 0x66CCFF, 0x99CCFF, 0x9999FF, 0x9966FF,
     0x9933FF, 0x9900FF},
    {0x006600, 0x00CC00, 0x00FF00, 0x66FF99, 0x99FFCC, 0xCCFFFF, 0xCCCCFF, 0xCC99FF, 0xCC66FF,
     0xCC33FF, 0xCC00FF, 0x9900CC},
    {0x003300, 0x009933, 0x33CC33, 0x66FF66, 0x99FF99, 0xCCFFCC, 0xFFFFFF, 0xFFCCFF, 0xFF99FF,
     0xFF66FF, 0xFF00FF, 0xCC00CC, 0x660066},
    {0x336600, 0x009900, 0x66FF33, 0x99FF66, 0xCCFF99, 0xFFFFCC, 0xFFCCCC, 0xFF99CC, 0xFF66CC,
     0xFF33CC, 0xCC0099, 0x993399},
    {0x333300, 0x669900, 0x99FF33, 0xCCFF66, 0xFFFF99, 0xFFCC99, 0xFF9999, 0xFF6699, 0xFF3399,
     0xCC3399, 0x990099},
    {0x666633, 0x99CC00, 0xCCFF33, 0xFFFF66, 0xFFCC66, 0xFF9966, 0xFF6666, 0xFF0066, 0xCC6699,
     0x993366},
    {0x999966, 0xCCCC00, 0xFFFF00, 0xFFCC00, 0xFF9933, 0xFF6600, 0xFF6666, 0xCC0066, 0x660033},
    {0x996633, 0xCC9900, 0xFF9900, 0xCC6600, 0xFF3300, 0xFF0000, 0xCC0000, 0x990033},
    {0x663300, 0x996600, 0xCC3300, 0x993300, 0x990000, 0x800000, 0x993333},
};

struct NamedCell {
  std::int32_t Index;
  const char* Name;
};

// The honeycomb's only named cells, by Index.
constexpr NamedCell kNames[] = {{13, "Blue"},    {28, "Aqua"},    {48, "Lime"},   {64, "White"},
                                {68, "Fuchsia"}, {106, "Yellow"}, {126, "Maroon"}};

// The grey row under the honeycomb: two staggered rows of small greys between a
// large white (left) and a large black (right).
constexpr HexagonCellEntry kGreyRow[] = {
    {"", FromRedFirst(0xFFFFFF), 0, 14, true},    {"", FromRedFirst(0xCCCCCC), 3, 14, false},
    {"", FromRedFirst(0xC0C0C0), 3, 15, false},   {"", FromRedFirst(0x999999), 4, 14, false},
    {"Gray", FromRedFirst(0x808080), 4, 15, false}, {"", FromRedFirst(0x666666), 5, 14, false},
    {"", FromRedFirst(0x333333), 5, 15, false},   {"Black", FromRedFirst(0x000000), 7, 14, true},
};

const char* NameOf(std::int32_t index) {
  for (const NamedCell& named : kNames) {
    if (named.Index == index) return named.Name;
  }
  return "";
}

std::array<HexagonCellEntry, HexagonTable::CellCount> Build() {
  std::array<HexagonCellEntry, HexagonTable::CellCount> cells{};
  std::size_t next = 0;
  std::int32_t row = 0;
  for (const auto& colours : kRows) {
    std::int32_t x = 0;
    for (const std::uint32_t rgb : colours) {
      const auto index = static_cast<std::int32_t>(next + 1);
      cells[next++] = {NameOf(index), FromRedFirst(rgb), x++, row, false};
    }
    ++row;
  }
  for (const HexagonCellEntry& grey : kGreyRow) cells[next++] = grey;
  return cells;
}

}  // namespace

const std::array<HexagonCellEntry, HexagonTable::CellCount>& HexagonTable::Cells() {
  static const std::array<HexagonCellEntry, CellCount> cells = Build();
  return cells;
}

const FaceTable& HexagonTable::Faces() {
  static const FaceTable faces = [] {
    std::vector<CellFace> built;
    built.reserve(CellCount);
    for (const HexagonCellEntry& e : Cells()) built.push_back(CellFace{e.Name, e.Color, e.X, e.Y, e.IsLarge});
    return std::make_shared<const std::vector<CellFace>>(std::move(built));
  }();
  return faces;
}

}  // namespace lumo
