#pragma once

#include "colormodel/Types.h"

namespace lumo {

// What a CEventPass raises, to the one object that listens to it (the combo that owns it).
class CEventPassEvents {
 public:
  virtual ~CEventPassEvents() = default;
  virtual void OverColor(OLE_COLOR /*lColor*/, bool /*bOverAutomatic*/) {}
};

}  // namespace lumo
