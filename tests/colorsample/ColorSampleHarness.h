#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "colorsample/ColorSample.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"

namespace lumo::testing {

// A site with a window handle of its own, so that what a control hands to the window
// system can be told apart from "no window".
class HandleSite : public RecordingSite {
 public:
  WindowHandle hWnd() const override { return 0x5A; }
};

// A ColorSample placed new on a 120 x 30 pixel surface, its form's font "Tahoma" 9 pt.
// The recording surface measures 6 pixels a character and 13 a line.
class ColorSampleHarness : public ::testing::Test {
 protected:
  ColorSampleHarness() {
    site.Font = Ambient;
    sample.emplace(host.Runtime, surface, site);
    sample->UserControl_InitProperties();
  }

  std::vector<std::string> Messages() const {
    std::vector<std::string> prompts;
    for (const auto& m : host.Messages.Shown) prompts.push_back(m.Prompt);
    return prompts;
  }
  // The operations of the last drawing, from its Cls on.
  std::vector<std::string> LastDrawing() const {
    std::vector<std::string> ops;
    for (const SurfaceCall& call : surface.Calls) {
      if (call.Op == "Cls") ops.clear();
      ops.push_back(call.Op);
    }
    return ops;
  }

  const StdFont Ambient{"Tahoma", 9.0};
  TestHost host;
  RecordingSurface surface{120, 30};
  HandleSite site;
  std::optional<ColorSample> sample;
};

}  // namespace lumo::testing
