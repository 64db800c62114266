#pragma once

#include "colormodel/Runtime.h"
#include "support/ManualClock.h"
#include "support/ManualTimers.h"
#include "support/RecordingMessageBox.h"
#include "support/ScriptedColorChooser.h"
#include "support/ScriptedWindowSystem.h"

namespace lumo::testing {

// Every host service, headless and deterministic, and a fresh runtime over them.
struct TestHost {
  RecordingMessageBox Messages;
  ManualClock Clock;
  ManualTimers Timers;
  ScriptedWindowSystem Windows;
  ScriptedColorChooser Chooser;
  lumo::Runtime Runtime{HostServices{Messages, Clock, Timers, Windows, Chooser}};

  const CommonGlobals& Errors() const { return Runtime.Errors(); }
};

}  // namespace lumo::testing
