#pragma once

#include "colormodel/HostTimer.h"

namespace LumoColorCombo::host {

// Makes the timers on Qt's event loop; each runs on the thread that created it, the UI thread.
class QtTimerService : public lumo::TimerService {
 public:
  std::unique_ptr<lumo::HostTimer> CreateTimer(std::function<void()> tick) override;
};

}  // namespace LumoColorCombo::host
