#pragma once

#include <cstdint>
#include <string>

namespace lumo {

// How an unload was started, as Form_QueryUnload reports it.
namespace unloadmode {
inline constexpr std::int32_t ControlMenu = 0;  // the user closed the window (title bar, system menu)
inline constexpr std::int32_t Code = 1;         // the form's own code called Unload
}  // namespace unloadmode

// What a form window delivers to the core object behind it. Children are named as in
// the form's design ("cmdButton", "txtColor"); `index` is the control-array index.
class FormEvents {
 public:
  virtual ~FormEvents() = default;
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  virtual void Form_KeyDown(std::int16_t& /*keyCode*/, std::int16_t /*shift*/) {}
  // Setting `cancel` keeps the form loaded.
  virtual void Form_QueryUnload(bool& /*cancel*/, std::int32_t /*unloadMode*/) {}
  virtual void Form_Unload() {}
  virtual void ControlClick(const std::string& /*control*/, std::int32_t /*index*/) {}
  virtual void ControlLostFocus(const std::string& /*control*/) {}
};

}  // namespace lumo
