#pragma once

#include <functional>

#include <QBasicTimer>

#include "colormodel/HostTimer.h"

namespace LumoColorCombo::host {

// A control's or form's Timer1 on Qt's event loop. It runs only while enabled with a
// positive interval (an interval of 0 never ticks), and changing the interval of a
// running timer restarts its count. The tick may destroy this object.
//
// No QTimer: every control has a Timer1, idle nearly all the time, and a QObject with
// a connection for each would cost more heap than the control's drawing state. The
// ticks of all of them reach one shared receiver, which finds the timer by its id.
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

  // Runs the handler; called by the shared receiver.
  void Tick();

 private:
  void Restart();
  void Stop();

  std::function<void()> tick_;
  QBasicTimer timer_;
  std::int32_t interval_ = 0;
  bool enabled_ = false;
};

}  // namespace LumoColorCombo::host
