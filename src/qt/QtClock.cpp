#include "qt/QtClock.h"

#include <ctime>

namespace LumoColorCombo::host {

// The grids read the clock on every pointer move. The C library's localtime_r applies
// the zone it loaded once; QTime::currentTime would look for a changed zone file on
// disk at each call, a system call that costs more than the rest of the move.
double QtClock::Timer() const {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  const long seconds = local.tm_hour * 3600L + local.tm_min * 60L + local.tm_sec;
  // Whole milliseconds, as the fraction.
  return static_cast<double>(seconds * 1000L + now.tv_nsec / 1000000L) / 1000.0;
}

}  // namespace LumoColorCombo::host
