#include "support/ManualTimers.h"

#include <algorithm>

namespace lumo::testing {

ManualTimer::~ManualTimer() {
  auto& live = owner_.live_;
  live.erase(std::remove(live.begin(), live.end(), this), live.end());
}

std::unique_ptr<HostTimer> ManualTimers::CreateTimer(std::function<void()> tick) {
  auto timer = std::make_unique<ManualTimer>(*this, std::move(tick));
  live_.push_back(timer.get());
  return timer;
}

int ManualTimers::FireEnabled() {
  int fired = 0;
  const std::vector<ManualTimer*> snapshot = live_;  // a tick may create or destroy timers
  for (ManualTimer* timer : snapshot) {
    if (std::find(live_.begin(), live_.end(), timer) != live_.end() && timer->Fire()) ++fired;
  }
  return fired;
}

}  // namespace lumo::testing
