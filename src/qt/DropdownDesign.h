#pragma once

namespace LumoColorCombo::host {

class QtFormWindow;

// The drop-down's window: a frameless popup holding one hosted palette grid,
// "ColorBox1", at its client origin; the core sizes the window around the grid with
// Move. As a Qt popup it is placed against the window that opens it on X11 and Wayland
// alike, takes all input while open and is closed by Qt when the user turns elsewhere;
// QtFormWindow turns that into the form's activation and deactivation.
//
// A press outside that closes it is not passed on to the window under the pointer: it
// belongs to the drop-down (its grid takes the mouse for that very press), so a click
// on the combo's own field closes the drop-down instead of opening it again.
class DropdownDesign {
 public:
  static void build(QtFormWindow& form);
};

}  // namespace LumoColorCombo::host
