#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "colormodel/HostTimer.h"

namespace lumo::testing {

// Timers that tick only when the test fires them.
class ManualTimers : public TimerService {
 public:
  class Timer : public HostTimer {
   public:
    Timer(ManualTimers& owner, std::function<void()> tick) : owner_(owner), tick_(std::move(tick)) {}
    ~Timer() override { std::erase(owner_.live_, this); }
    std::int32_t Interval() const override { return interval_; }
    void SetInterval(std::int32_t milliseconds) override { interval_ = milliseconds; }
    bool Enabled() const override { return enabled_; }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }

   private:
    friend class ManualTimers;
    ManualTimers& owner_;
    std::function<void()> tick_;
    std::int32_t interval_ = 0;
    bool enabled_ = false;
  };

  std::unique_ptr<HostTimer> CreateTimer(std::function<void()> tick) override {
    auto timer = std::make_unique<Timer>(*this, std::move(tick));
    live_.push_back(timer.get());
    return timer;
  }
  // Every live timer, in creation order.
  const std::vector<Timer*>& Live() const { return live_; }
  // Ticks every enabled timer once; answers how many ticked. A tick may create or
  // destroy timers, so each is looked up again before it ticks.
  int FireEnabled() {
    int fired = 0;
    for (Timer* timer : std::vector<Timer*>(live_)) {
      if (std::ranges::find(live_, timer) == live_.end() || !timer->enabled_) continue;
      timer->tick_();
      ++fired;
    }
    return fired;
  }

 private:
  std::vector<Timer*> live_;
};

}  // namespace lumo::testing
