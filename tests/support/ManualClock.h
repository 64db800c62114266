#pragma once

#include "colormodel/Clock.h"

namespace lumo::testing {

// Seconds since midnight that only move when the test moves them.
class ManualClock : public Clock {
 public:
  double Timer() const override { return Now; }
  void Advance(double seconds) { Now += seconds; }
  double Now = 36000.0;  // 10:00
};

}  // namespace lumo::testing
