#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "colormodel/HostTimer.h"

namespace lumo::testing {

class ManualTimers;

// A timer that ticks only when the test fires it.
class ManualTimer : public HostTimer {
 public:
  ManualTimer(ManualTimers& owner, std::function<void()> tick) : owner_(owner), tick_(std::move(tick)) {}
  ~ManualTimer() override;  // leaves the owner's list of live timers
  std::int32_t Interval() const override { return interval_; }
  void SetInterval(std::int32_t milliseconds) override { interval_ = milliseconds; }
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override { enabled_ = enabled; }
  // Ticks once if enabled; answers whether it ticked.
  bool Fire() {
    if (!enabled_) return false;
    tick_();
    return true;
  }

 private:
  ManualTimers& owner_;
  std::function<void()> tick_;
  std::int32_t interval_ = 0;
  bool enabled_ = false;
};

class ManualTimers : public TimerService {
 public:
  std::unique_ptr<HostTimer> CreateTimer(std::function<void()> tick) override;
  // Every live timer, in creation order.
  const std::vector<ManualTimer*>& Live() const { return live_; }
  // Ticks every enabled timer once; answers how many ticked.
  int FireEnabled();

 private:
  friend class ManualTimer;
  std::vector<ManualTimer*> live_;
};

}  // namespace lumo::testing
