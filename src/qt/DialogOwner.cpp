#include "qt/DialogOwner.h"

#include <QApplication>

namespace LumoColorCombo::host {
namespace {

// The UI thread's current named owner.
QPointer<QWidget>& Named() {
  static QPointer<QWidget> named;
  return named;
}

}  // namespace

DialogOwner::DialogOwner(QWidget* widget) : previous_(Named()), named_(widget != nullptr) {
  if (named_) Named() = widget->window();
}

DialogOwner::~DialogOwner() {
  if (named_) Named() = previous_;
}

QWidget* DialogOwner::window() {
  if (QWidget* named = Named()) return named;
  return QApplication::activeWindow();
}

}  // namespace LumoColorCombo::host
