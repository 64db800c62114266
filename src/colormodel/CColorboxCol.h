#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "colormodel/CColorboxEl.h"
#include "colormodel/Types.h"

namespace lumo {

class CommonGlobals;

using CellPtr = std::shared_ptr<CColorboxEl>;

// The ordered list of colour cells of a control, 1-based in insertion order, with the
// hit test and the colour searches both controls use. The list owns its cells; a
// caller that keeps a cell (a hot or selected cell) keeps it alive after removal.
class CColorboxCol {
 public:
  explicit CColorboxCol(const CommonGlobals& errors) : errors_(errors) {}
  CColorboxCol(const CColorboxCol&) = delete;
  CColorboxCol& operator=(const CColorboxCol&) = delete;
  ~CColorboxCol();

  CellPtr Add(const std::string& sName, OLE_COLOR lColor, std::int32_t lX, std::int32_t lY,
              bool bIsLarge = false);
  // Adds one cell per face of a shared table, as that many Adds would. The cells are
  // made in one block, which lives while any of them is held.
  void AddAll(const std::vector<FacePtr>& faces);
  // The cell at 1-based `index`; out of range reports "index out of range" and answers null.
  CellPtr Item(std::int32_t index) const;
  std::int32_t Count() const;
  void Remove(std::int32_t index);
  void Clear();

  std::int32_t NewIndex() const { return newIndex_; }
  std::int32_t Shape() const { return shape_; }
  void SetShape(std::int32_t shape) { shape_ = shape; }

  // Nearest by the absolute difference of the packed colour numbers (not by
  // components); strict less-than, so the earliest of equals wins. An overflowing
  // difference reports and answers null.
  CellPtr FindClosest(OLE_COLOR lColor) const;
  // The first cell whose stored bounds contain the point, all edges inclusive.
  CellPtr GetObject(std::int32_t lX, std::int32_t lY) const;
  CellPtr GetObjectByColor(OLE_COLOR lColor) const;
  bool ColorExists(OLE_COLOR lColor) const;

  // In-order iteration.
  std::vector<CellPtr>::const_iterator begin() const { return cells_.begin(); }
  std::vector<CellPtr>::const_iterator end() const { return cells_.end(); }

 private:
  CellPtr At(std::int32_t index) const;  // throws index out of range
  void Append(CellPtr cell);

  const CommonGlobals& errors_;
  std::vector<CellPtr> cells_;
  std::int32_t newIndex_ = 0;
  std::int32_t shape_ = 0;
};

}  // namespace lumo
