#pragma once

#include <cstdint>

#include <Qt>

class QKeyEvent;

namespace LumoColorCombo::host {

// Key codes and shift state as the core's key handlers expect them: the Win32
// virtual-key codes (VK_F4 = 115, VK_LEFT = 37, 'A' = 65, ...) and the shift mask of
// lumo::shift (Shift 1, Ctrl 2, Alt 4). Shared by everything that turns a Qt key event
// into a KeyDown for the core: the drawing surfaces and the forms' key preview.
class VirtualKeys {
 public:
  // The virtual-key code of the event's key, or 0 for a key without one.
  static std::int16_t keyCode(const QKeyEvent& event);
  static std::int16_t keyCode(int qtKey, Qt::KeyboardModifiers modifiers);
  static std::int16_t shiftState(Qt::KeyboardModifiers modifiers);
};

}  // namespace LumoColorCombo::host
