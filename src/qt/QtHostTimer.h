#pragma once

#include <functional>
#include <memory>

#include "colormodel/HostTimer.h"

class QTimer;

namespace LumoColorCombo::host {

// A control's or form's Timer1 on a QTimer. It runs only while enabled with a positive
// interval (an interval of 0 never ticks), and changing the
// interval of a running timer restarts its count. The tick may destroy this object.
class QtHostTimer : public lumo::HostTimer {
 public:
  explicit QtHostTimer(std::function<void()> tick);
  QtHostTimer(const QtHostTimer&) = delete;
  QtHostTimer& operator=(const QtHostTimer&) = delete;
  ~QtHostTimer() override;

  std::int32_t Interval() const override { return interval_; }
  void SetInterval(std::int32_t milliseconds) override;
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override;

  // The Qt timer behind it, for tests that wait on its timeout.
  QTimer* qtTimer() const { return timer_; }

 private:
  void Restart();
  void Tick();

  std::function<void()> tick_;
  QTimer* timer_;
  std::int32_t interval_ = 0;
  bool enabled_ = false;
  // Shared with a running tick, which must not touch this object once it is gone.
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  int ticking_ = 0;
};

}  // namespace LumoColorCombo::host
