#include "qt/QtHostTimer.h"

#include <QTimer>

namespace LumoColorCombo::host {

QtHostTimer::QtHostTimer(std::function<void()> tick) : tick_(std::move(tick)), timer_(new QTimer) {
  QObject::connect(timer_, &QTimer::timeout, [this] { Tick(); });
}

QtHostTimer::~QtHostTimer() {
  *alive_ = false;
  timer_->stop();
  QObject::disconnect(timer_, nullptr, nullptr, nullptr);
  // A QTimer must not be deleted while it is delivering its own timeout; when the tick
  // destroys us, let the event loop delete it once the tick has returned.
  if (ticking_ > 0) {
    timer_->deleteLater();
  } else {
    delete timer_;
  }
}

void QtHostTimer::SetInterval(std::int32_t milliseconds) {
  interval_ = milliseconds;
  Restart();
}

void QtHostTimer::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Restart();
}

void QtHostTimer::Restart() {
  if (enabled_ && interval_ > 0) {
    timer_->start(interval_);
  } else {
    timer_->stop();
  }
}

void QtHostTimer::Tick() {
  // Hold the alive flag and a copy of the handler: the handler may destroy this timer,
  // and its captures must live until it returns.
  const std::shared_ptr<bool> alive = alive_;
  const std::function<void()> tick = tick_;
  ++ticking_;
  tick();
  if (*alive) --ticking_;
}

}  // namespace LumoColorCombo::host
