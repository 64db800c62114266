#pragma once

#include "colorcombo/CEventPassEvents.h"
#include "colormodel/Types.h"

namespace lumo {

// The relay through which an open drop-down tells its combo which colour is under
// the pointer. It keeps nothing but its listener: OverColor raises the event of the same name with
// the same arguments to its one listener. The combo owns the relay and lends it to the
// drop-down, which may hold it a little longer than the combo lives; a relay whose
// listener has gone raises to nobody.
class CEventPass {
 public:
  void OverColor(OLE_COLOR lColor, bool bOverAutomatic);

  CEventPassEvents* Listener() const { return listener_; }
  void SetListener(CEventPassEvents* listener) { listener_ = listener; }

 private:
  CEventPassEvents* listener_ = nullptr;
};

}  // namespace lumo
