#pragma once

namespace lumo {

// The platform's `Timer` function: seconds since midnight, for short measurements.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual double Timer() const = 0;
};

}  // namespace lumo
