#pragma once

#include <cstdint>
#include <string>

namespace lumo {

// The host's modal message box. `style` is the platform's style value (48: the
// exclamation icon with one OK button); the result is the button pressed (1 = OK).
class MessageBox {
 public:
  virtual ~MessageBox() = default;
  virtual std::int32_t MsgBox(const std::string& prompt, std::int32_t style,
                              const std::string& title) = 0;
};

}  // namespace lumo
