#include "colormodel/CColorboxCol.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>
#include <type_traits>

#include "colormodel/CheckedMath.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/Geometry.h"

namespace lumo {
namespace {

constexpr const char* kModule = "CColorboxCol";
constexpr std::int32_t kFarthest = 1 << 30;

// Whether bounds fit a slot: a 16-bit corner, and a width and height of 0 to 255.
bool FitsSlot(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
  constexpr std::int64_t kLow = std::numeric_limits<std::int16_t>::min();
  constexpr std::int64_t kHigh = std::numeric_limits<std::int16_t>::max();
  constexpr std::int64_t kSide = std::numeric_limits<std::uint8_t>::max();
  const std::int64_t width = std::int64_t{right} - left;
  const std::int64_t height = std::int64_t{bottom} - top;
  return kLow <= left && left <= kHigh && kLow <= top && top <= kHigh && 0 <= width && width <= kSide &&
         0 <= height && height <= kSide;
}

bool BeforePosition(const CellPtr& cell, std::int32_t position) { return cell->Position() < position; }

}  // namespace

CColorboxCol::~CColorboxCol() {
  // A cell that outlives its list must not point back at it.
  for (const auto& cell : made_) cell->SetParent(nullptr);
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

void CColorboxCol::Append(const CellPtr& cell) {
  cell->SetParent(this);
  slots_.emplace_back();
  made_.push_back(cell);
  newIndex_ = Count();
  cell->SetPosition(newIndex_);
}

void CColorboxCol::AddAll(const FaceTable& faces) {
  errors_.Trap(kModule, "Add", [&] {
    if (!faces || faces->empty()) return;
    const std::size_t first = FirstNumberOf(faces);
    // Exactly as many slots as cells: a control's list is loaded once and then kept.
    slots_.reserve(slots_.size() + faces->size());
    for (std::size_t i = 0; i < faces->size(); ++i) {
      if (first + i < Slot::ObjectMade) {
        slots_.push_back(Slot{static_cast<std::uint16_t>(first + i)});
      } else {
        Append(std::make_shared<CColorboxEl>(errors_, FacePtr(faces, &(*faces)[i])));
      }
    }
    newIndex_ = Count();
  });
}

std::size_t CColorboxCol::FirstNumberOf(const FaceTable& faces) {
  std::size_t first = 0;
  for (const FaceTable& table : tables_) {
    if (table == faces) return first;
    first += table->size();
  }
  tables_.push_back(faces);
  return first;
}

std::pair<const FaceTable*, std::size_t> CColorboxCol::Locate(std::uint16_t number) const {
  // A slot's number always falls in a kept table: tables are dropped only with every slot.
  std::size_t place = number;
  auto table = tables_.begin();
  while (place >= (*table)->size() && table + 1 != tables_.end()) place -= (*table++)->size();
  return {&*table, place};
}

const CellFace& CColorboxCol::NumberedFace(std::uint16_t number) const {
  // Most lists show one table: its faces are found without a walk.
  const std::vector<CellFace>& first = *tables_.front();
  if (number < first.size()) return first[number];
  const auto [table, place] = Locate(number);
  return (**table)[place];
}

CColorboxCol::Slot& CColorboxCol::SlotAt(std::int32_t index) const {
  if (index < 1 || index > Count()) throw RuntimeError(err::IndexOutOfRange);
  return slots_[static_cast<std::size_t>(index - 1)];
}

std::vector<CellPtr>::iterator CColorboxCol::MadeFrom(std::int32_t position) const {
  return std::lower_bound(made_.begin(), made_.end(), position, BeforePosition);
}

std::optional<std::uint16_t> CColorboxCol::NumberOf(const CellFace* face) const {
  std::size_t first = 0;
  for (const FaceTable& table : tables_) {
    const std::less<const CellFace*> before;
    if (!before(face, table->data()) && before(face, table->data() + table->size())) {
      const std::size_t number = first + static_cast<std::size_t>(face - table->data());
      if (number < Slot::ObjectMade) return static_cast<std::uint16_t>(number);
      return std::nullopt;
    }
    first += table->size();
  }
  return std::nullopt;
}

void CColorboxCol::FoldUnheld() const {
  // An object that only the list holds, still showing its table's face, with bounds a
  // slot can keep, turns back into its slot: a pointer that visits every cell leaves
  // no objects behind. Nobody can tell the object it answers next from this one.
  std::erase_if(made_, [&](const CellPtr& cell) {
    if (cell.use_count() != 1) return false;
    const auto number = NumberOf(cell->Face().get());
    const std::int32_t left = cell->BoundLeft();
    const std::int32_t top = cell->BoundTop();
    if (!number || !FitsSlot(left, top, cell->BoundRight(), cell->BoundBottom())) return false;
    slots_[static_cast<std::size_t>(cell->Position() - 1)] =
        Slot{*number, static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
             static_cast<std::uint8_t>(cell->BoundRight() - left), static_cast<std::uint8_t>(cell->BoundBottom() - top)};
    cell->SetParent(nullptr);
    return true;
  });
}

CellPtr CColorboxCol::Made(std::int32_t position) const {
  Slot& slot = slots_[static_cast<std::size_t>(position - 1)];
  if (slot.face == Slot::ObjectMade) return *MadeFrom(position);
  FoldUnheld();
  const auto at = MadeFrom(position);
  // The object's face shares the ownership of its table.
  const auto [table, place] = Locate(slot.face);
  auto cell = std::make_shared<CColorboxEl>(errors_, FacePtr(*table, &(**table)[place]));
  cell->SetBounds(slot.left, slot.top, slot.left + slot.width, slot.top + slot.height);
  // The list's own cells name it as their parent, whether or not it is asked as const.
  cell->SetParent(const_cast<CColorboxCol*>(this));
  cell->SetPosition(position);
  made_.insert(at, cell);
  slot = Slot{};
  return cell;
}

CellPtr CColorboxCol::Item(std::int32_t index) const {
  CellPtr result;
  errors_.Trap(kModule, "Item", [&] {
    SlotAt(index);  // throws index out of range
    result = Made(index);
  });
  return result;
}

std::int32_t CColorboxCol::Count() const { return static_cast<std::int32_t>(slots_.size()); }

void CColorboxCol::Remove(std::int32_t index) {
  errors_.Trap(kModule, "Remove", [&] {
    const CellPtr cell = Item(index);  // reports an invalid position itself
    if (!cell) return;
    cell->SetParent(nullptr);
    const auto at = made_.erase(MadeFrom(index));
    slots_.erase(slots_.begin() + (index - 1));
    for (auto later = at; later != made_.end(); ++later) (*later)->SetPosition((*later)->Position() - 1);
    newIndex_ = 0;
  });
}

void CColorboxCol::Clear() {
  // Removing every cell at once, not one by one from the front: the same outcome
  // as n calls of Remove(1) without moving the rest of the list n times.
  errors_.Trap(kModule, "Clear", [&] {
    for (const auto& cell : made_) cell->SetParent(nullptr);
    if (!slots_.empty()) newIndex_ = 0;
    slots_.clear();
    made_.clear();
    tables_.clear();
  });
}

const CellFace& CColorboxCol::Face(std::int32_t index) const {
  const Slot& slot = SlotAt(index);
  return slot.face != Slot::ObjectMade ? NumberedFace(slot.face) : *(*MadeFrom(index))->Face();
}

void CColorboxCol::SetBounds(std::int32_t index, std::int32_t left, std::int32_t top, std::int32_t right,
                             std::int32_t bottom) {
  Slot& slot = SlotAt(index);
  if (slot.face != Slot::ObjectMade && FitsSlot(left, top, right, bottom)) {
    slot.left = static_cast<std::int16_t>(left);
    slot.top = static_cast<std::int16_t>(top);
    slot.width = static_cast<std::uint8_t>(right - left);
    slot.height = static_cast<std::uint8_t>(bottom - top);
    return;
  }
  Made(index)->SetBounds(left, top, right, bottom);
}

template <class Match>
std::int32_t CColorboxCol::FirstWhere(Match&& match) const {
  // The made objects come in position order, one per made slot, so one cursor
  // through them serves the whole walk. A match on bounds never reads a face; each
  // kind of cell has its own call, so a match reads only the fields it compares.
  constexpr bool byBounds = std::is_invocable_v<Match&, const Rect&>;
  auto made = made_.cbegin();
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    const Slot& slot = slots_[i];
    bool found = false;
    if (slot.face != Slot::ObjectMade) {
      if constexpr (byBounds) {
        found = match(Rect{slot.left, slot.top, slot.left + slot.width, slot.top + slot.height});
      } else {
        found = match(NumberedFace(slot.face));
      }
    } else {
      const CColorboxEl& cell = **made++;
      if constexpr (byBounds) {
        found = match(Rect{cell.BoundLeft(), cell.BoundTop(), cell.BoundRight(), cell.BoundBottom()});
      } else {
        found = match(*cell.Face());
      }
    }
    if (found) return static_cast<std::int32_t>(i + 1);
  }
  return 0;
}

CellPtr CColorboxCol::FindClosest(OLE_COLOR lColor) const {
  CellPtr result;
  errors_.Trap(kModule, "FindClosest", [&] {
    std::int32_t best = kFarthest;
    std::int32_t bestPosition = 0;
    std::int32_t position = 0;
    FirstWhere([&](const CellFace& face) {
      ++position;
      const std::int32_t distance = checked::Abs(checked::Sub(face.Color, lColor));
      if (distance < best) {
        best = distance;
        bestPosition = position;
      }
      return false;
    });
    if (bestPosition > 0) result = Item(bestPosition);
  });
  return result;
}

CellPtr CColorboxCol::GetObject(std::int32_t lX, std::int32_t lY) const {
  const std::int32_t position = FirstWhere([&](const Rect& bounds) {
    return bounds.Left <= lX && lX <= bounds.Right && bounds.Top <= lY && lY <= bounds.Bottom;
  });
  return position > 0 ? Made(position) : nullptr;
}

CellPtr CColorboxCol::GetObjectByColor(OLE_COLOR lColor) const {
  const std::int32_t position = FirstWhere([&](const CellFace& face) { return face.Color == lColor; });
  return position > 0 ? Made(position) : nullptr;
}

bool CColorboxCol::ColorExists(OLE_COLOR lColor) const {
  // Asked by colour only: no object is needed to answer.
  return FirstWhere([&](const CellFace& face) { return face.Color == lColor; }) > 0;
}

std::int32_t CColorboxCol::PositionOf(const CColorboxEl& cell) const {
  const auto at = MadeFrom(cell.Position());
  return at != made_.end() && at->get() == &cell ? cell.Position() : 0;
}

}  // namespace lumo
