#include "morecolors/PopupFormDesign.h"

namespace lumo {

const std::vector<PopupFormDesign::Child>& PopupFormDesign::Children() {
  // "Ok" is spelt that way on purpose: it is the dialog's caption and hosts rely on it.
  static const std::vector<Child> children{
      {"ColorHexagon1", 0, "ColorHexagon", ""},   {"txtColor", 0, "TextBox", ""},
      {"lblHeader", 0, "Label", "Current:"},      {"lblHeader", 1, "Label", "New:"},
      {"lblHeader", 2, "Label", "Value:"},        {"picColorBack", 0, "PictureBox", ""},
      {"picNew", 0, "PictureBox", ""},            {"picCurrent", 0, "PictureBox", ""},
      {"cmdButton", 0, "CommandButton", "Ok"},    {"cmdButton", 1, "CommandButton", "Cancel"},
      {"cmdCustom", 0, "CommandButton", "Custom"}, {"cmdSelect", 0, "CommandButton", "Select..."},
  };
  return children;
}

}  // namespace lumo
