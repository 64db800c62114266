#pragma once

#include <string>

#include "colormodel/Types.h"

namespace lumo {

// What a ColorBox tells its host, in the published order of its event interface.
// Every member has an empty default so a host overrides only what it listens to.
class ColorBoxEvents {
 public:
  virtual ~ColorBoxEvents() = default;

  // A cell became hot (its colour, false) or the pointer is over the Automatic
  // button (0, true).
  virtual void OverColor(OLE_COLOR /*lColor*/, bool /*bOverAutomatic*/) {}
  // A choice was made. The colour and the flag arrive by reference, but they are
  // copies: a handler that changes them changes nothing in the control.
  virtual void Click(OLE_COLOR& /*lColor*/, const std::string& /*sColorName*/, bool& /*bIsAutomatic*/) {}
  virtual void MoreColorClick() {}
  // Escape, a press or release outside the control, or loss of focus.
  virtual void UserCancel() {}
  // Raised at the end of every Refresh that draws: the control's extent may have changed.
  virtual void Resize() {}
};

}  // namespace lumo
