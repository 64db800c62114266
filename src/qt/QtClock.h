#pragma once

#include "colormodel/Clock.h"

namespace LumoColorCombo::host {

// The Timer function on the local wall clock: seconds since local midnight, with the
// milliseconds as the fraction.
class QtClock : public lumo::Clock {
 public:
  double Timer() const override;
};

}  // namespace LumoColorCombo::host
