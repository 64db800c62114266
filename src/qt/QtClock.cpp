#include "qt/QtClock.h"

#include <QTime>

namespace LumoColorCombo::host {

double QtClock::Timer() const { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

}  // namespace LumoColorCombo::host
