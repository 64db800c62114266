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
  EndEcho();
  cell->SetParent(this);
  slots_.emplace_back();
  made_.push_back(cell);
  newIndex_ = Count();
  cell->SetPosition(newIndex_);
}

void CColorboxCol::AddAll(const FaceTable& faces) {
  errors_.Trap(kModule, "Add", [&] {
    if (!faces || faces->empty()) return;
    EndEcho();
    const std::size_t first = FirstNumberOf(faces);
    if (CanEcho(faces, first)) {
      StartEcho(first, faces->size());
      return;
    }
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

bool CColorboxCol::CanEcho(const FaceTable& faces, std::size_t first) const {
  // Only a load right after a load of the same table, whose cells still show its
  // faces or are made; they may have been painted, which the echo catches up with.
  const std::size_t count = faces->size();
  if (count > slots_.size() || first + count > Slot::ObjectMade) return false;
  const std::size_t start = slots_.size() - count;
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint16_t face = slots_[start + i].face;
    if (face != Slot::ObjectMade && face != first + i) return false;
  }
  return true;
}

void CColorboxCol::StartEcho(std::size_t first, std::size_t count) {
  // A new cell has no bounds yet: it keeps a slot of its own until its twin's bounds
  // are stored for it too, as painting the whole list does.
  const std::size_t start = slots_.size() - count;
  const auto fresh = [&](std::size_t i) { return Slot{static_cast<std::uint16_t>(first + i)}; };
  std::size_t differing = 0;
  for (std::size_t i = 0; i < count; ++i) differing += slots_[start + i] == fresh(i) ? 0 : 1;
  ownSlots_.reserve(differing);
  for (std::size_t i = count; i-- > 0;) {
    if (slots_[start + i] == fresh(i)) continue;
    ownSlots_.emplace_back(EchoBase() + static_cast<std::int32_t>(i) + 1, fresh(i));
  }
  echo_ = static_cast<std::int32_t>(count);
  newIndex_ = Count();
}

void CColorboxCol::EndEcho() {
  if (echo_ == 0) return;
  const std::size_t base = slots_.size();
  slots_.reserve(base + static_cast<std::size_t>(echo_));
  for (std::int32_t k = 1; k <= echo_; ++k) {
    const std::int32_t position = static_cast<std::int32_t>(base) + k;
    const auto own = OwnSlotOf(position);
    const bool hasOwn = own != ownSlots_.end() && own->first == position;
    slots_.push_back(hasOwn ? own->second : slots_[base - static_cast<std::size_t>(echo_) + k - 1]);
  }
  echo_ = 0;
  std::vector<std::pair<std::int32_t, Slot>>().swap(ownSlots_);
}

std::vector<std::pair<std::int32_t, CColorboxCol::Slot>>::iterator CColorboxCol::OwnSlotOf(
    std::int32_t position) const {
  return std::lower_bound(ownSlots_.begin(), ownSlots_.end(), position,
                          [](const auto& own, std::int32_t at) { return own.first > at; });
}

void CColorboxCol::KeepOwnSlot(std::int32_t position, const Slot& slot) const {
  const auto own = OwnSlotOf(position);
  if (own != ownSlots_.end() && own->first == position) {
    own->second = slot;
  } else {
    ownSlots_.insert(own, {position, slot});
  }
}

void CColorboxCol::DropOwnSlot(std::int32_t position) const {
  const auto own = OwnSlotOf(position);
  if (own == ownSlots_.end() || own->first != position) return;
  ownSlots_.erase(own);
  // Painting gives every echoing cell its own slot for a moment; the room goes back
  // once the twins agree again.
  if (ownSlots_.empty()) {
    std::vector<std::pair<std::int32_t, Slot>>().swap(ownSlots_);
  } else if (ownSlots_.size() * 4 <= ownSlots_.capacity()) {
    ownSlots_.shrink_to_fit();
  }
}

CColorboxCol::Slot CColorboxCol::SlotOf(std::int32_t position) const {
  if (position <= EchoBase()) return slots_[static_cast<std::size_t>(position - 1)];
  const auto own = OwnSlotOf(position);
  if (own != ownSlots_.end() && own->first == position) return own->second;
  return slots_[static_cast<std::size_t>(TwinOf(position) - 1)];
}

void CColorboxCol::StoreSlot(std::int32_t position, const Slot& slot) const {
  // An echoing cell and its twin share one slot only while both hold it, and never a
  // made object's mark: the object belongs to one cell.
  const auto agree = [](const Slot& a, const Slot& b) { return a.face != Slot::ObjectMade && a == b; };
  if (position > EchoBase()) {
    if (agree(slot, slots_[static_cast<std::size_t>(TwinOf(position) - 1)])) {
      DropOwnSlot(position);
    } else {
      KeepOwnSlot(position, slot);
    }
    return;
  }
  Slot& plain = slots_[static_cast<std::size_t>(position - 1)];
  if (plain == slot) return;
  const std::int32_t echo = position + echo_;
  const bool hasEcho = position > EchoBase() - echo_;
  if (hasEcho && SlotOf(echo) == plain) KeepOwnSlot(echo, plain);
  plain = slot;
  if (hasEcho && agree(slot, SlotOf(echo))) DropOwnSlot(echo);
}

void CColorboxCol::CheckIndex(std::int32_t index) const {
  if (index < 1 || index > Count()) throw RuntimeError(err::IndexOutOfRange);
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
    StoreSlot(cell->Position(),
              Slot{*number, static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                   static_cast<std::uint8_t>(cell->BoundRight() - left),
                   static_cast<std::uint8_t>(cell->BoundBottom() - top)});
    cell->SetParent(nullptr);
    return true;
  });
}

CellPtr CColorboxCol::Made(std::int32_t position) const {
  const Slot slot = SlotOf(position);
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
  StoreSlot(position, Slot{});
  return cell;
}

CellPtr CColorboxCol::Item(std::int32_t index) const {
  CellPtr result;
  errors_.Trap(kModule, "Item", [&] {
    CheckIndex(index);
    result = Made(index);
  });
  return result;
}

std::int32_t CColorboxCol::Count() const { return EchoBase() + echo_; }

void CColorboxCol::Remove(std::int32_t index) {
  errors_.Trap(kModule, "Remove", [&] {
    const CellPtr cell = Item(index);  // reports an invalid position itself
    if (!cell) return;
    EndEcho();
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
    if (Count() != 0) newIndex_ = 0;
    slots_.clear();
    echo_ = 0;
    std::vector<std::pair<std::int32_t, Slot>>().swap(ownSlots_);
    made_.clear();
    tables_.clear();
  });
}

const CellFace& CColorboxCol::Face(std::int32_t index) const {
  CheckIndex(index);
  const Slot slot = SlotOf(index);
  return slot.face != Slot::ObjectMade ? NumberedFace(slot.face) : *(*MadeFrom(index))->Face();
}

void CColorboxCol::SetBounds(std::int32_t index, std::int32_t left, std::int32_t top, std::int32_t right,
                             std::int32_t bottom) {
  CheckIndex(index);
  const Slot slot = SlotOf(index);
  if (slot.face != Slot::ObjectMade && FitsSlot(left, top, right, bottom)) {
    StoreSlot(index, Slot{slot.face, static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                          static_cast<std::uint8_t>(right - left), static_cast<std::uint8_t>(bottom - top)});
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
  const auto count = static_cast<std::size_t>(Count());
  for (std::size_t i = 0; i < count; ++i) {
    const Slot slot = SlotOf(static_cast<std::int32_t>(i + 1));
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
