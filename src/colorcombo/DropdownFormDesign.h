#pragma once

#include <cstdint>

namespace lumo {

// The "frmDropdown" window as the core reaches it: the form's name, its one hosted
// control (a ColorBox, a surface and a site of this name at the client origin) and the
// interval of its activation watch. Everything else about the window is the host's.
struct DropdownFormDesign {
  static constexpr const char* FormName = "frmDropdown";
  static constexpr const char* ColorBoxName = "ColorBox1";
  static constexpr std::int32_t TimerInterval = 500;  // milliseconds
};

}  // namespace lumo
