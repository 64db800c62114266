#include "colormodel/CColorboxCol.h"

#include "colormodel/CheckedMath.h"
#include "colormodel/CommonGlobals.h"

namespace lumo {
namespace {

constexpr const char* kModule = "CColorboxCol";
constexpr std::int32_t kFarthest = 1 << 30;

}  // namespace

CColorboxCol::~CColorboxCol() {
  // A cell that outlives its list must not point back at it.
  for (const auto& cell : cells_) cell->SetParent(nullptr);
}

CellPtr CColorboxCol::Add(const std::string& sName, OLE_COLOR lColor, std::int32_t lX,
                          std::int32_t lY, bool bIsLarge) {
  CellPtr result;
  errors_.Trap(kModule, "Add", [&] {
    auto cell = std::make_shared<CColorboxEl>(errors_);
    cell->SetName(sName);
    cell->SetColor(lColor);
    cell->SetX(lX);
    cell->SetY(lY);
    cell->SetIsLarge(bIsLarge);
    Append(cell);
    result = std::move(cell);
  });
  return result;
}

void CColorboxCol::Append(CellPtr cell) {
  cell->SetParent(this);
  cells_.push_back(cell);
  newIndex_ = Count();
  cell->SetPosition(newIndex_);
}

void CColorboxCol::AddAll(const std::vector<FacePtr>& faces) {
  errors_.Trap(kModule, "Add", [&] {
    auto block = std::make_shared<std::vector<CColorboxEl>>();
    block->reserve(faces.size());
    for (const FacePtr& face : faces) block->emplace_back(errors_, face);
    cells_.reserve(cells_.size() + faces.size());
    // Each cell shares the block's ownership: a held cell keeps its block alive.
    for (CColorboxEl& cell : *block) Append(CellPtr(block, &cell));
  });
}

CellPtr CColorboxCol::At(std::int32_t index) const {
  if (index < 1 || index > static_cast<std::int32_t>(cells_.size())) {
    throw RuntimeError(err::IndexOutOfRange);
  }
  return cells_[static_cast<std::size_t>(index - 1)];
}

CellPtr CColorboxCol::Item(std::int32_t index) const {
  CellPtr result;
  errors_.Trap(kModule, "Item", [&] { result = At(index); });
  return result;
}

std::int32_t CColorboxCol::Count() const { return static_cast<std::int32_t>(cells_.size()); }

void CColorboxCol::Remove(std::int32_t index) {
  errors_.Trap(kModule, "Remove", [&] {
    const CellPtr cell = Item(index);  // reports an invalid position itself
    if (!cell) return;
    cell->SetParent(nullptr);
    cells_.erase(cells_.begin() + (index - 1));
    for (auto i = static_cast<std::size_t>(index - 1); i < cells_.size(); ++i) {
      cells_[i]->SetPosition(static_cast<std::int32_t>(i) + 1);
    }
    newIndex_ = 0;
  });
}

void CColorboxCol::Clear() {
  // Removing every cell at once, not one by one from the front: the same outcome
  // as n calls of Remove(1) without moving the rest of the list n times.
  errors_.Trap(kModule, "Clear", [&] {
    for (const auto& cell : cells_) cell->SetParent(nullptr);
    if (!cells_.empty()) newIndex_ = 0;
    cells_.clear();
  });
}

CellPtr CColorboxCol::FindClosest(OLE_COLOR lColor) const {
  CellPtr result;
  errors_.Trap(kModule, "FindClosest", [&] {
    std::int32_t best = kFarthest;
    std::int32_t bestPosition = 0;
    std::int32_t position = 0;
    for (const auto& cell : cells_) {
      ++position;
      const std::int32_t distance = checked::Abs(checked::Sub(cell->Color(), lColor));
      if (distance < best) {
        best = distance;
        bestPosition = position;
      }
    }
    if (bestPosition > 0) result = Item(bestPosition);
  });
  return result;
}

CellPtr CColorboxCol::GetObject(std::int32_t lX, std::int32_t lY) const {
  for (const auto& cell : cells_) {
    if (cell->BoundLeft() <= lX && lX <= cell->BoundRight() && cell->BoundTop() <= lY &&
        lY <= cell->BoundBottom()) {
      return cell;
    }
  }
  return nullptr;
}

CellPtr CColorboxCol::GetObjectByColor(OLE_COLOR lColor) const {
  for (const auto& cell : cells_) {
    if (cell->Color() == lColor) return cell;
  }
  return nullptr;
}

bool CColorboxCol::ColorExists(OLE_COLOR lColor) const { return GetObjectByColor(lColor) != nullptr; }

}  // namespace lumo
