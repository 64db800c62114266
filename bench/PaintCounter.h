#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

// Counts the paints a widget receives, so that a benchmark can wait for the paint it times.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};
