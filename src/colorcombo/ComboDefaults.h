#pragma once

#include <cstdint>

#include "colormodel/Enums.h"
#include "colormodel/Types.h"

namespace lumo {

// A ColorCombo's initial values, which are also the defaults of its persisted keys
// (a value equal to its default is left out of the bag). Caption has none of its own:
// a new control takes the host's name for it, a loaded one without the key is "".
struct ComboDefaults {
  static constexpr OLE_COLOR BackColor = sys::ButtonFace;
  static constexpr OLE_COLOR ForeColor = sys::ButtonText;
  static constexpr bool AllowAutomatic = true;
  static constexpr bool AllowMoreColors = true;
  static constexpr OLE_COLOR Color = 0x663300;
  static constexpr OLE_COLOR AutoColor = sys::ButtonShadow;
  static constexpr const char* AutomaticText = "Automatic";
  static constexpr const char* MoreColorsText = "More Colors...";
  static constexpr bool IsAutomatic = true;
  static constexpr bool Enabled = true;
  static constexpr std::int32_t PickStyle = cpsStandard;
  static constexpr std::int32_t OpenEffect = oecNone;
  static constexpr std::int32_t Style = cscDropDown;
  static constexpr const char* Caption = "";
  static constexpr bool AllowAutoColorBox = true;
  static constexpr bool AllowHotTracking = true;
};

}  // namespace lumo
