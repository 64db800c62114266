#pragma once

#include <functional>

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

// Acts on the next modal window of type `Modal` as soon as it is up: the test starts
// this, then runs the call that shows the window and waits in its modal loop. The
// check runs from the event loop, so it sees the window once its loop is running.
template <class Modal>
class ModalCloser {
 public:
  explicit ModalCloser(std::function<void(Modal&)> act) : act_(std::move(act)) {
    timer_.setInterval(0);
    QObject::connect(&timer_, &QTimer::timeout, [this] { poll(); });
    timer_.start();
  }

  bool acted() const { return acted_; }

 private:
  void poll() {
    auto* modal = qobject_cast<Modal*>(QApplication::activeModalWidget());
    if (!modal || !modal->isVisible()) return;
    timer_.stop();
    acted_ = true;
    act_(*modal);
  }

  std::function<void(Modal&)> act_;
  QTimer timer_;
  bool acted_ = false;
};
