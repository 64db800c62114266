#pragma once

namespace LumoColorCombo::host {

class QtFormWindow;

// The drop-down's window: borderless, holding one hosted palette grid, "ColorBox1", at
// its client origin; the core sizes the window around the grid with Move.
//
// It is a frameless tool window rather than a Qt::Popup: a popup never becomes the
// active window, so the core, which closes the drop-down when the active window is no
// longer its own, would close it at once. As a tool window it is activated when shown,
// and a click on another window deactivates it (Form_Deactivate), which the core takes
// as a click outside. Its modal show leaves the other windows usable for that reason.
class DropdownDesign {
 public:
  static void build(QtFormWindow& form);
};

}  // namespace LumoColorCombo::host
