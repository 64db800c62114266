#include "qt/QtHostTimer.h"

#include <QObject>
#include <QTimerEvent>

#include <unordered_map>

namespace LumoColorCombo::host {
namespace {

// Receives the ticks of every running host timer and hands each to its timer. It
// lives as long as the process, so no timer can outlive it.
class TimerReceiver : public QObject {
 public:
  static TimerReceiver& instance() {
    static auto* receiver = new TimerReceiver;
    return *receiver;
  }

  void add(int id, QtHostTimer* timer) { running_[id] = timer; }
  void remove(int id) { running_.erase(id); }

 protected:
  void timerEvent(QTimerEvent* event) override {
    const auto found = running_.find(event->timerId());
    if (found != running_.end()) found->second->Tick();
  }

 private:
  std::unordered_map<int, QtHostTimer*> running_;
};

}  // namespace

QtHostTimer::QtHostTimer(std::function<void()> tick) : tick_(std::move(tick)) {}

QtHostTimer::~QtHostTimer() { Stop(); }

void QtHostTimer::SetInterval(std::int32_t milliseconds) {
  interval_ = milliseconds;
  Restart();
}

void QtHostTimer::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Restart();
}

void QtHostTimer::Restart() {
  Stop();
  if (!enabled_ || interval_ <= 0) return;
  TimerReceiver& receiver = TimerReceiver::instance();
  timer_.start(interval_, &receiver);
  // Not started without an event loop to run it (Qt says why).
  if (timer_.isActive()) receiver.add(timer_.timerId(), this);
}

void QtHostTimer::Stop() {
  if (!timer_.isActive()) return;
  TimerReceiver::instance().remove(timer_.timerId());
  timer_.stop();
}

void QtHostTimer::Tick() {
  // A copy of the handler: it may destroy this timer, and its captures must live until
  // it returns.
  const std::function<void()> tick = tick_;
  tick();
}

}  // namespace LumoColorCombo::host
