#pragma once

#include <functional>

#include <QTimer>

// Acts once, from the event loop, as soon as a condition holds: how a test steps in
// while the call under test runs a modal loop. Polls every few milliseconds, so the
// X server's events keep coming in between.
class WhenReady {
 public:
  WhenReady(std::function<bool()> ready, std::function<void()> act) : ready_(std::move(ready)), act_(std::move(act)) {
    timer_.setInterval(10);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      if (!ready_()) return;
      timer_.stop();
      act_();
    });
    timer_.start();
  }

 private:
  std::function<bool()> ready_;
  std::function<void()> act_;
  QTimer timer_;
};
