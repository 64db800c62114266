#include "qt/MouseCapture.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace LumoColorCombo::host {

void MouseCapture::take(QWidget& widget) {
  if (!widget.isVisible()) return;
  // Held already, and in the window system too: the grids ask again on every pointer
  // move, and each grab is a request to the window system.
  if (holder_ == &widget && QWidget::mouseGrabber() == &widget && !waitingWindow_) return;
  widget.grabMouse();
  QWindow* window = widget.window()->windowHandle();
  Watch(&widget, window != nullptr && !window->isExposed() ? window : nullptr);
}

void MouseCapture::release() {
  Unwatch();
  if (QWidget* holder = QWidget::mouseGrabber()) holder->releaseMouse();
}

void MouseCapture::Watch(QWidget* holder, QWindow* window) {
  Unwatch();
  holder_ = holder;
  holder->installEventFilter(this);
  waitingWindow_ = window;
  if (window != nullptr) window->installEventFilter(this);
}

void MouseCapture::Unwatch() {
  if (holder_) holder_->removeEventFilter(this);
  if (waitingWindow_) waitingWindow_->removeEventFilter(this);
  holder_ = nullptr;
  waitingWindow_ = nullptr;
}

bool MouseCapture::eventFilter(QObject* watched, QEvent* event) {
  const bool holds = holder_ && QWidget::mouseGrabber() == holder_;
  if (watched == waitingWindow_ && event->type() == QEvent::Expose && waitingWindow_->isExposed()) {
    waitingWindow_->removeEventFilter(this);
    waitingWindow_ = nullptr;
    // Grabbing again while holding it lets go in Qt and takes it in the window system.
    if (holds) holder_->grabMouse();
  } else if (watched == holder_ && event->type() == QEvent::Hide) {
    if (holds) holder_->releaseMouse();
    Unwatch();
  }
  return false;
}

}  // namespace LumoColorCombo::host
