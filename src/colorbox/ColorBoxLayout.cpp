#include "colorbox/ColorBoxLayout.h"

#include "colormodel/CheckedMath.h"
#include "colormodel/TextRules.h"

namespace lumo {

using checked::Add;
using checked::Div;
using checked::Mod;
using checked::Mul;
using checked::Sub;

std::int32_t ColorBoxLayout::StrCount(std::string_view sText, std::string_view sFind, std::int32_t lCompare) {
  const text::Compare compare = lCompare == 1 ? text::Compare::Text : text::Compare::Binary;
  const std::int32_t removed = Sub(text::Len(sText), text::Len(text::Replace(sText, sFind, "", compare)));
  return Div(removed, text::Len(sFind));
}

std::int32_t ColorBoxLayout::AreaWidth(std::int32_t columns) {
  return Add(Mul(SquareSize, columns), Mul(CellPitch - SquareSize, Sub(columns, 1)));
}

std::int32_t ColorBoxLayout::Rows() const {
  const std::int32_t full = FullRows();
  return Mod(cellCount_, columns_) != 0 ? Add(full, 1) : full;
}

std::int32_t ColorBoxLayout::FullRows() const { return Div(cellCount_, columns_); }

std::int32_t ColorBoxLayout::MarkerHeight() const { return Mul(RowGap, StrCount(marker_, ";", 1)); }

std::int32_t ColorBoxLayout::GapBefore(std::int32_t row) const {
  return Mul(RowGap, StrCount(marker_, ";" + text::Decimal(row) + ";", 1));
}

std::int32_t ColorBoxLayout::GapsAbove(std::int32_t row) const {
  std::int32_t pixels = 0;
  for (std::int32_t r = 1; r <= row; ++r) pixels = Add(pixels, GapBefore(r));
  return pixels;
}

std::vector<std::int32_t> ColorBoxLayout::GapsAboveRows() const {
  std::vector<std::int32_t> gaps;
  const std::int32_t rows = Rows();
  std::int32_t pixels = 0;
  for (std::int32_t row = 0; row < rows; ++row) {
    if (row > 0) pixels = Add(pixels, GapBefore(row));
    gaps.push_back(pixels);
  }
  return gaps;
}

Point ColorBoxLayout::SurfaceSize(std::int32_t textHeight, bool withAutomatic, bool withMoreColors) const {
  std::int32_t height = Add(Mul(Rows(), CellPitch), 2);
  if (withAutomatic) height = Add(height, textHeight);
  if (withMoreColors) height = Add(height, Add(textHeight, 4));
  height = Add(height, MarkerHeight());
  return {Add(AreaWidth(columns_), Border), Add(height, Border)};
}

Point ColorBoxLayout::CellOrigin(std::int32_t index, std::int32_t gridLeft, std::int32_t gridTop) const {
  const std::int32_t row = Div(Sub(index, 1), columns_);
  const std::int32_t column = Mod(Sub(index, 1), columns_);
  return {Add(Mul(column, CellPitch), gridLeft), Add(Mul(row, CellPitch), Add(gridTop, GapsAbove(row)))};
}

Point ColorBoxLayout::CellOrigin(std::int32_t index, std::int32_t gridLeft, std::int32_t gridTop,
                                 const std::vector<std::int32_t>& gapsAbove) const {
  const std::int32_t row = Div(Sub(index, 1), columns_);
  if (row < 0 || static_cast<std::size_t>(row) >= gapsAbove.size()) return CellOrigin(index, gridLeft, gridTop);
  const std::int32_t column = Mod(Sub(index, 1), columns_);
  return {Add(Mul(column, CellPitch), gridLeft),
          Add(Mul(row, CellPitch), Add(gridTop, gapsAbove[static_cast<std::size_t>(row)]))};
}

std::vector<std::int32_t> ColorBoxLayout::GapLines(std::int32_t y) const {
  // A marked row r gets its line 2 pixels into the gap above it; each earlier gap
  // pushes the later lines down by its 4 pixels.
  std::vector<std::int32_t> lines;
  const std::int32_t fullRows = FullRows();
  for (std::int32_t r = 1; r <= fullRows; ++r) {
    if (StrCount(marker_, ";" + text::Decimal(r) + ";", 1) != 1) continue;
    const auto drawn = static_cast<std::int32_t>(lines.size());
    lines.push_back(Add(Add(Add(y, Mul(r, CellPitch)), Mul(RowGap, drawn)), 2));
  }
  return lines;
}

}  // namespace lumo
