#pragma once

#include <cstdint>
#include <string>

#include "colormodel/Types.h"

namespace lumo {

// The events of the hexagon control, in their published order. Every handler is
// optional. Colour names arrive already wrapped as "Hex={RR,GG,BB}".
class ColorHexagonEvents {
 public:
  virtual ~ColorHexagonEvents() = default;

  // 1. The colour changed (by a click, a key or the Color property while the control
  //    is not automatic).
  virtual void ColorChanged(OLE_COLOR /*NewColor*/, const std::string& /*NewColorName*/,
                            const std::string& /*ColorHex*/) {}
  // 2. IsAutomatic changed.
  virtual void IsAutomaticChanged(bool /*NewValue*/) {}
  // 3. A press and a release on the same cell.
  virtual void ColorClick(OLE_COLOR /*Color*/, const std::string& /*ColorName*/, std::int16_t /*Button*/,
                          std::int16_t /*Shift*/, std::int32_t /*X*/, std::int32_t /*Y*/) {}
  // 4. A double click that follows a completed click.
  virtual void ColorDblClick(OLE_COLOR /*Color*/, const std::string& /*ColorName*/) {}
  // 5. The pointer moved over a cell.
  virtual void ColorOver(OLE_COLOR /*Color*/, const std::string& /*ColorName*/, std::int16_t /*Button*/,
                         std::int16_t /*Shift*/, std::int32_t /*X*/, std::int32_t /*Y*/) {}
};

}  // namespace lumo
