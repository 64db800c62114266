#pragma once

#include <string>
#include <vector>

#include "colormodel/ControlSite.h"

namespace lumo::testing {

// A container with a window of its own that records change notifications and keeps the
// size it is given.
class RecordingSite : public ControlSite {
 public:
  void PropertyChanged(const std::string& name) override { Changed.push_back(name); }
  StdFont AmbientFont() const override { return Font; }
  bool AmbientUserMode() const override { return UserMode; }
  std::string AmbientDisplayName() const override { return DisplayName; }
  std::int32_t Width() const override { return WidthTwips; }
  std::int32_t Height() const override { return HeightTwips; }
  void Size(std::int32_t width, std::int32_t height) override {
    WidthTwips = width;
    HeightTwips = height;
  }
  void SetEnabled(bool enabled) override { Enabled = enabled; }
  void SetAccessKeys(const std::string& keys) override { AccessKeys = keys; }
  WindowHandle hWnd() const override { return 0x5A; }

  std::vector<std::string> Changed;
  StdFont Font;
  bool UserMode = true;
  std::string DisplayName = "Control1";
  std::int32_t WidthTwips = 0;
  std::int32_t HeightTwips = 0;
  bool Enabled = true;
  std::string AccessKeys;
};

}  // namespace lumo::testing
