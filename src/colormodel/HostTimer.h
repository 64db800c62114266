#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace lumo {

// A timer inside a control or form; its tick runs on the user-interface thread.
class HostTimer {
 public:
  virtual ~HostTimer() = default;
  virtual std::int32_t Interval() const = 0;  // milliseconds
  virtual void SetInterval(std::int32_t milliseconds) = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
};

class TimerService {
 public:
  virtual ~TimerService() = default;
  // A new, disabled timer that calls `tick` at every interval while enabled.
  virtual std::unique_ptr<HostTimer> CreateTimer(std::function<void()> tick) = 0;
};

}  // namespace lumo
