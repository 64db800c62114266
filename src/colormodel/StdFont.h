#pragma once

#include <string>

namespace lumo {

// A font description as the controls keep and persist it. The host maps it to a
// real font (the Qt host to QFont).
struct StdFont {
  std::string Name = "MS Sans Serif";
  double Size = 8.25;  // points
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool Strikethrough = false;

  friend bool operator==(const StdFont&, const StdFont&) = default;
};

}  // namespace lumo
