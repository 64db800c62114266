#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "colormodel/CColorboxEl.h"
#include "colormodel/CellFace.h"
#include "colormodel/Types.h"

namespace lumo {

class CommonGlobals;

using CellPtr = std::shared_ptr<CColorboxEl>;

// The ordered list of colour cells of a control, 1-based in insertion order, with the
// hit test and the colour searches both controls use. The list owns its cells; a
// caller that keeps a cell (a hot or selected cell) keeps it alive after removal.
//
// A cell added from a shared table costs the list one 8-byte slot (its face's number
// and its drawn bounds) until someone asks for it as an object (Item, the searches,
// iteration). While anyone holds that object, every request answers it and it holds
// the cell's state; once only the list holds it, and it still shows its table's face,
// the list may turn it back into its slot. The controls paint through Face and
// SetBounds by position, so a shown control holds objects only for the cells it
// keeps (its selected or hot cell).
//
// A table loaded again right after its own load (the honeycomb loads its table
// twice) costs no plain slots: the later cells echo the earlier ones, and only a
// later cell whose slot differs from its twin's keeps a slot of its own.
// Adding or removing cells turns the echo into plain slots first.
class CColorboxCol {
 public:
  // In-order iteration; each step answers the cell's object, making it if needed.
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = CellPtr;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = CellPtr;

    Iterator() = default;
    Iterator(const CColorboxCol* list, std::int32_t position) : list_(list), position_(position) {}
    CellPtr operator*() const { return list_->Made(position_); }
    Iterator& operator++() {
      ++position_;
      return *this;
    }
    Iterator operator++(int) {
      Iterator before = *this;
      ++position_;
      return before;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    const CColorboxCol* list_ = nullptr;
    std::int32_t position_ = 1;
  };

  explicit CColorboxCol(const CommonGlobals& errors) : errors_(errors) {}
  CColorboxCol(const CColorboxCol&) = delete;
  CColorboxCol& operator=(const CColorboxCol&) = delete;
  ~CColorboxCol();

  CellPtr Add(const std::string& sName, OLE_COLOR lColor, std::int32_t lX, std::int32_t lY,
              bool bIsLarge = false);
  // Adds one cell per face of a shared table, as that many Adds would. The list keeps
  // the table alive while it lists cells of it; no cell object is made here.
  void AddAll(const FaceTable& faces);
  // The cell at 1-based `index`; out of range reports "index out of range" and answers null.
  CellPtr Item(std::int32_t index) const;
  std::int32_t Count() const;
  void Remove(std::int32_t index);
  void Clear();

  std::int32_t NewIndex() const { return newIndex_; }
  std::int32_t Shape() const { return shape_; }
  void SetShape(std::int32_t shape) { shape_ = shape; }

  // What the cell at 1-based `index` shows, and its drawn bounds, without making its
  // object: how a control paints its cells. An index out of range throws "index out of
  // range" to the calling procedure's trap.
  const CellFace& Face(std::int32_t index) const;
  void SetBounds(std::int32_t index, std::int32_t left, std::int32_t top, std::int32_t right,
                 std::int32_t bottom);

  // Nearest by the absolute difference of the packed colour numbers (not by
  // components); strict less-than, so the earliest of equals wins. An overflowing
  // difference reports and answers null.
  CellPtr FindClosest(OLE_COLOR lColor) const;
  // The first cell whose stored bounds contain the point, all edges inclusive.
  CellPtr GetObject(std::int32_t lX, std::int32_t lY) const;
  CellPtr GetObjectByColor(OLE_COLOR lColor) const;
  bool ColorExists(OLE_COLOR lColor) const;

  // The 1-based position of `cell` in this list, 0 when the list does not hold it.
  std::int32_t PositionOf(const CColorboxEl& cell) const;

  Iterator begin() const { return {this, 1}; }
  Iterator end() const { return {this, Count() + 1}; }

 private:
  // A cell without an object, in 8 bytes: the number of its face among the faces of
  // the kept tables, and its drawn bounds as a corner with a width and height of up
  // to 255 pixels. Bounds that do not fit make the object, which holds them whole; a
  // table's faces beyond the numbering come as objects at once. `ObjectMade` marks a cell
  // whose object is made: the object is then the cell's only state.
  struct Slot {
    static constexpr std::uint16_t ObjectMade = 0xFFFF;
    std::uint16_t face = ObjectMade;
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::uint8_t width = 0;
    std::uint8_t height = 0;
    bool operator==(const Slot&) const = default;
  };
  static_assert(sizeof(Slot) == 8);

  // The slot of the cell at `position` (in range), wherever it is kept.
  Slot SlotOf(std::int32_t position) const;
  // Gives the cell at `position` (in range) the slot `slot`, keeping the echo true.
  void StoreSlot(std::int32_t position, const Slot& slot) const;
  // The first echoing position, and the position an echoing cell repeats.
  std::int32_t EchoBase() const { return static_cast<std::int32_t>(slots_.size()); }
  std::int32_t TwinOf(std::int32_t position) const { return position - echo_; }
  std::vector<std::pair<std::int32_t, Slot>>::iterator OwnSlotOf(std::int32_t position) const;
  void KeepOwnSlot(std::int32_t position, const Slot& slot) const;
  void DropOwnSlot(std::int32_t position) const;
  // Whether appending `faces` numbered from `first` may echo the cells before it.
  bool CanEcho(const FaceTable& faces, std::size_t first) const;
  void StartEcho(std::size_t first, std::size_t count);
  // Turns the echo into plain slots: what adding and removing cells work on.
  void EndEcho();

  // The position of the first cell for which `match` holds, given the cell's face or,
  // when it takes a Rect, its inclusive drawn bounds; 0 when none does. No object is made.
  template <class Match>
  std::int32_t FirstWhere(Match&& match) const;
  void CheckIndex(std::int32_t index) const;  // throws index out of range
  // The object of the cell at `position` (in range), made on first request.
  CellPtr Made(std::int32_t position) const;
  std::vector<CellPtr>::iterator MadeFrom(std::int32_t position) const;
  // The number of the first face of `faces`, keeping the table if it is new.
  std::size_t FirstNumberOf(const FaceTable& faces);
  // The kept table holding face `number`, and the face's place in it.
  std::pair<const FaceTable*, std::size_t> Locate(std::uint16_t number) const;
  const CellFace& NumberedFace(std::uint16_t number) const;
  // The number of a face of a kept table; none for a face of the cell's own.
  std::optional<std::uint16_t> NumberOf(const CellFace* face) const;
  void FoldUnheld() const;
  void Append(const CellPtr& cell);

  const CommonGlobals& errors_;
  // Handing out a cell's object leaves the list's content as it was, so a const
  // request may make one.
  mutable std::vector<Slot> slots_;
  mutable std::vector<CellPtr> made_;  // the objects made so far, in position order
  std::vector<FaceTable> tables_;      // the tables whose faces the slots show, in numbering order
  // The number of cells after the plain slots that echo the last `echo_` of them, and
  // the slots of those echoing cells that differ from their twins', last position first:
  // painting in position order then drops them from the back.
  std::int32_t echo_ = 0;
  mutable std::vector<std::pair<std::int32_t, Slot>> ownSlots_;
  std::int32_t newIndex_ = 0;
  std::int32_t shape_ = 0;
};

}  // namespace lumo
