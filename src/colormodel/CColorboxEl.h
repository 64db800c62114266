#pragma once

#include <cstdint>
#include <string>

#include "colormodel/Types.h"

namespace lumo {

class CColorboxCol;
class CommonGlobals;

// One colour cell: a colour with its name, its logical position and the rectangle
// where its owner last drew it. A cell in a list knows that list (`Parent`) until
// the list removes it.
class CColorboxEl {
 public:
  explicit CColorboxEl(const CommonGlobals& errors) : errors_(errors) {}

  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  OLE_COLOR Color() const { return color_; }
  void SetColor(OLE_COLOR color) { color_ = color; }
  bool IsLarge() const { return isLarge_; }
  void SetIsLarge(bool large) { isLarge_ = large; }
  std::int32_t X() const { return x_; }
  void SetX(std::int32_t x) { x_ = x; }
  std::int32_t Y() const { return y_; }
  void SetY(std::int32_t y) { y_ = y; }

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
  // The list keeps each cell's position up to date, so Index answers without a walk.
  void SetPosition(std::int32_t position) { position_ = position; }

  // "RR,GG,BB" and "#RRGGBB", upper-case. Values outside 0..FFFFFF report an invalid
  // argument under the cell's own name and answer "".
  std::string GetColorString() const;
  std::string GetColorStringHex() const;

 private:
  // The six digits BBGGRR; an invalid argument for more than six.
  std::string SixHexDigits() const;

  const CommonGlobals& errors_;
  OLE_COLOR color_ = 0;
  std::int32_t x_ = 0;
  std::int32_t y_ = 0;
  std::int32_t boundLeft_ = 0;
  std::int32_t boundTop_ = 0;
  std::int32_t boundRight_ = 0;
  std::int32_t boundBottom_ = 0;
  std::string name_;
  bool isLarge_ = false;
  std::int32_t position_ = 0;  // beside the flag, where the padding was
  CColorboxCol* parent_ = nullptr;
};

}  // namespace lumo
