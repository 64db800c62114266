#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

namespace LumoColorCombo::host {

// Mouse capture on Qt, held in the window system and not only in Qt's bookkeeping.
//
// A widget's mouse grab reaches the window system only while its window is mapped: X11
// refuses a pointer grab on a window that is not viewable yet, while Qt records the
// widget as the grabber all the same. A control that takes the mouse while it is being
// shown (the grid, in its show handler, before its window is mapped) would then see
// presses inside the application but none outside it. So a capture asked for before
// the window is exposed is applied again once it is, if the widget still holds it.
//
// A hidden widget cannot keep the mouse: when the holder is hidden the capture ends, so
// a grid on a page the user left does not swallow the first press on the next page.
class MouseCapture : public QObject {
  Q_OBJECT

 public:
  void take(QWidget& widget);
  void release();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Watch(QWidget* holder, QWindow* window);
  void Unwatch();

  QPointer<QWidget> holder_;
  // The holder's top-level window while the grab still waits for it to be exposed.
  QPointer<QWindow> waitingWindow_;
};

}  // namespace LumoColorCombo::host
