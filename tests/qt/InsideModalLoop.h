#pragma once

#include <functional>

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

// Acts on a window from inside the modal loop that shows it: the test starts this, then
// runs the call that shows the window and waits in its loop. The poll runs from the event
// loop, so it sees the window once it is exposed. The action is expected to end the loop;
// a window it leaves open is closed (and `ended()` is false), so a failing test still
// ends. Any other window found afterwards, such as an error box, is closed and counted.
template <class Window>
class InsideModalLoop {
 public:
  using Finder = std::function<Window*()>;

  // By default the window is the active modal widget of type `Window`.
  explicit InsideModalLoop(std::function<void(Window&)> act, Finder find = {})
      : find_(find ? std::move(find) : [] { return qobject_cast<Window*>(QApplication::activeModalWidget()); }),
        act_(std::move(act)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Poll(); });
    timer_.start(0);
  }

  bool acted() const { return acted_; }
  bool ended() const { return acted_ && !leftOpen_; }
  int laterWindows() const { return later_; }

 private:
  void Poll() {
    Window* window = find_();
    const bool exposed = window != nullptr && window->windowHandle() && window->windowHandle()->isExposed();
    if (!exposed || !window->isVisible() || window == actedOn_) return;
    if (acted_) {
      ++later_;
      window->close();
      return;
    }
    acted_ = true;
    actedOn_ = window;
    act_(*window);
    if (actedOn_ && actedOn_->isVisible()) {
      leftOpen_ = true;
      actedOn_->close();
    }
  }

  Finder find_;
  std::function<void(Window&)> act_;
  QTimer timer_;
  QPointer<Window> actedOn_;
  bool acted_ = false;
  bool leftOpen_ = false;
  int later_ = 0;
};
