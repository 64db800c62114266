#include "qt/WidgetHandles.h"

#include <QApplication>
#include <QWidget>

namespace LumoColorCombo::host {

lumo::WindowHandle WidgetHandles::handleOf(const QWidget* widget) {
  return reinterpret_cast<lumo::WindowHandle>(widget);
}

QWidget* WidgetHandles::widgetOf(lumo::WindowHandle handle) {
  if (handle == 0) return nullptr;
  // QApplication keeps the set of every live widget; comparing addresses against it
  // never dereferences the handle, so a stale one is harmless. The set is small (the
  // widgets of one application) and the lookups are rare (capture, focus, placement).
  const QWidgetList live = QApplication::allWidgets();
  for (QWidget* widget : live) {
    if (handleOf(widget) == handle) return widget;
  }
  return nullptr;
}

}  // namespace LumoColorCombo::host
