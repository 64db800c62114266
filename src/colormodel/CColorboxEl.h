#pragma once

#include <cstdint>
#include <string>

#include "colormodel/CellFace.h"
#include "colormodel/Types.h"

namespace lumo {

class CColorboxCol;
class CommonGlobals;

// One colour cell: a colour with its name, its logical position and the rectangle
// where its owner last drew it. A cell in a list knows that list (`Parent`) until
// the list removes it. What the cell shows is its face, which cells of the same
// table share (see CellFace); the cell itself holds only what its control changes.
class CColorboxEl {
 public:
  explicit CColorboxEl(const CommonGlobals& errors);
  CColorboxEl(const CommonGlobals& errors, FacePtr face) : errors_(errors), face_(std::move(face)) {}

  const std::string& Name() const { return face_->Name; }
  void SetName(std::string name) { OwnFace().Name = std::move(name); }
  OLE_COLOR Color() const { return face_->Color; }
  void SetColor(OLE_COLOR color) { OwnFace().Color = color; }
  bool IsLarge() const { return face_->IsLarge; }
  void SetIsLarge(bool large) { OwnFace().IsLarge = large; }
  std::int32_t X() const { return face_->X; }
  void SetX(std::int32_t x) { OwnFace().X = x; }
  std::int32_t Y() const { return face_->Y; }
  void SetY(std::int32_t y) { OwnFace().Y = y; }
  const FacePtr& Face() const { return face_; }

  // Inclusive pixel bounds of the drawn cell, written by the owning control.
  std::int32_t BoundLeft() const { return boundLeft_; }
  std::int32_t BoundTop() const { return boundTop_; }
  std::int32_t BoundRight() const { return boundRight_; }
  std::int32_t BoundBottom() const { return boundBottom_; }
  void SetBounds(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);

  CColorboxCol* Parent() const { return parent_; }
  void SetParent(CColorboxCol* parent) { parent_ = parent; }

  // 1-based position in the parent list, found by identity; 0 when absent. A cell
  // without a parent reports "object not set" and answers 0.
  std::int32_t Index() const;
  // The position its list last gave the cell: the list keeps it up to date while it
  // holds the cell, so Index answers without a walk.
  std::int32_t Position() const { return position_; }
  void SetPosition(std::int32_t position) { position_ = position; }

  // "RR,GG,BB" and "#RRGGBB", upper-case. Values outside 0..FFFFFF report an invalid
  // argument under the cell's own name and answer "".
  std::string GetColorString() const;
  std::string GetColorStringHex() const;

 private:
  // The six digits BBGGRR; an invalid argument for more than six.
  std::string SixHexDigits() const;
  // The face to change: a shared face is copied first, so the other cells keep theirs.
  CellFace& OwnFace();

  const CommonGlobals& errors_;
  FacePtr face_;
  std::int32_t boundLeft_ = 0;
  std::int32_t boundTop_ = 0;
  std::int32_t boundRight_ = 0;
  std::int32_t boundBottom_ = 0;
  std::int32_t position_ = 0;
  bool ownsFace_ = false;  // made by this cell as a changeable face; beside the position, where the padding was
  CColorboxCol* parent_ = nullptr;
};

}  // namespace lumo
