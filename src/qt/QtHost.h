#pragma once

#include <memory>

#include "colormodel/Runtime.h"
#include "qt/QtClock.h"
#include "qt/QtColorChooser.h"
#include "qt/QtMessageBox.h"
#include "qt/QtTimerService.h"
#include "qt/QtWindowSystem.h"

namespace LumoColorCombo::host {

// One of each host service on Qt and the runtime over them: what every control of an
// application shares. The application's default host is made on first use, so a
// widget needs nothing but its parent, and goes away when the application does. A
// test, or an application that wants its own, constructs one directly.
class QtHost {
 public:
  QtHost();
  QtHost(const QtHost&) = delete;
  QtHost& operator=(const QtHost&) = delete;
  ~QtHost();

  // The application's default host. Needs a QApplication; made on first use and
  // destroyed when the QApplication is.
  static QtHost& instance();

  lumo::Runtime& runtime() { return *runtime_; }
  QtMessageBox& messageBox() { return messageBox_; }
  QtClock& clock() { return clock_; }
  QtTimerService& timers() { return timers_; }
  QtWindowSystem& windows() { return windows_; }
  QtColorChooser& colorChooser() { return colorChooser_; }

 private:
  QtMessageBox messageBox_;
  QtClock clock_;
  QtTimerService timers_;
  QtWindowSystem windows_;
  QtColorChooser colorChooser_;
  // Last, so it goes first: its shared forms still use the services while they close.
  std::unique_ptr<lumo::Runtime> runtime_;
};

}  // namespace LumoColorCombo::host
