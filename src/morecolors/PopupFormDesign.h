#pragma once

#include <cstdint>
#include <vector>

namespace lumo {

// The children that a host builds into the "frmPopup" window, by the names the
// dialog reaches them with, and their fixed captions. Sizes and placement beyond the
// swatch frame are the host's. The hosted hexagon is a surface, a site and a label
// "ColorHexagon1.lblOverColor"; picNew and picCurrent lie inside picColorBack, whose
// scale is pixels.
class PopupFormDesign {
 public:
  struct Child {
    const char* Name;
    std::int32_t Index;  // control-array index, 0 where there is no array
    const char* Kind;    // "ColorHexagon", "TextBox", "Label", "PictureBox", "CommandButton"
    const char* Caption;
  };

  static constexpr const char* FormName = "frmPopup";
  static constexpr const char* Caption = "More Colors";

  static const std::vector<Child>& Children();
};

}  // namespace lumo
