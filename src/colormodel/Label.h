#pragma once

#include <cstdint>
#include <string>

#include "colormodel/Types.h"

namespace lumo {

// A one-line caption beside a drawing surface (the hexagon's hover text). Positions
// and sizes are twips in the owning control.
class Label {
 public:
  virtual ~Label() = default;
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  virtual void SetBackColor(OLE_COLOR color) = 0;
  virtual std::int32_t Left() const = 0;
  virtual std::int32_t Top() const = 0;
  virtual std::int32_t Width() const = 0;
  virtual std::int32_t Height() const = 0;
  virtual void Move(std::int32_t left, std::int32_t top) = 0;
};

}  // namespace lumo
