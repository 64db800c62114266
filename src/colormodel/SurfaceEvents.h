#pragma once

#include <cstdint>

namespace lumo {

// Mouse buttons and shift state as the surface events report them.
namespace mouse {
inline constexpr std::int16_t Left = 1;
inline constexpr std::int16_t Right = 2;
inline constexpr std::int16_t Middle = 4;
}  // namespace mouse

namespace shift {
inline constexpr std::int16_t Shift = 1;
inline constexpr std::int16_t Ctrl = 2;
inline constexpr std::int16_t Alt = 4;
}  // namespace shift

// The platform's key codes that the controls act on, as KeyDown reports them.
namespace keycode {
inline constexpr std::int16_t Enter = 13;
inline constexpr std::int16_t Escape = 27;
inline constexpr std::int16_t Left = 37;
inline constexpr std::int16_t Up = 38;
inline constexpr std::int16_t Right = 39;
inline constexpr std::int16_t Down = 40;
inline constexpr std::int16_t F4 = 115;
}  // namespace keycode

// What a drawing surface delivers to the control that owns it. Positions are in
// the surface's pixels; they may be fractional and may lie outside the surface
// while it holds the mouse capture.
class SurfaceEvents {
 public:
  virtual ~SurfaceEvents() = default;
  virtual void MouseDown(std::int16_t /*button*/, std::int16_t /*shift*/, double /*x*/, double /*y*/) {}
  virtual void MouseMove(std::int16_t /*button*/, std::int16_t /*shift*/, double /*x*/, double /*y*/) {}
  virtual void MouseUp(std::int16_t /*button*/, std::int16_t /*shift*/, double /*x*/, double /*y*/) {}
  virtual void DblClick() {}
  virtual void KeyDown(std::int16_t& /*keyCode*/, std::int16_t /*shift*/) {}
  virtual void GotFocus() {}
  virtual void LostFocus() {}
};

}  // namespace lumo
