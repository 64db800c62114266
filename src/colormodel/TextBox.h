#pragma once

#include <string>

namespace lumo {

// A one-line text field on one of the library's forms.
class TextBox {
 public:
  virtual ~TextBox() = default;
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace lumo
