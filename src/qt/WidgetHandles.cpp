#include "qt/WidgetHandles.h"

#include <QApplication>
#include <QHash>
#include <QPointer>
#include <QWidget>

namespace LumoColorCombo::host {
namespace {

// Handles already resolved, each with a guard that empties when its widget is deleted.
// The controls resolve the same few handles (their surfaces) on every capture call, so
// those find their widget here without a walk over every widget of the application.
QHash<lumo::WindowHandle, QPointer<QWidget>>& Resolved() {
  static QHash<lumo::WindowHandle, QPointer<QWidget>> resolved;
  return resolved;
}

// Past this many entries, the ones whose widget is gone are dropped before another is added.
constexpr qsizetype kPruneAbove = 64;

}  // namespace

lumo::WindowHandle WidgetHandles::handleOf(const QWidget* widget) {
  return reinterpret_cast<lumo::WindowHandle>(widget);
}

QWidget* WidgetHandles::widgetOf(lumo::WindowHandle handle) {
  if (handle == 0) return nullptr;
  auto& resolved = Resolved();
  const auto known = resolved.constFind(handle);
  if (known != resolved.constEnd() && !known->isNull()) return known->data();
  // QApplication keeps the set of every live widget; comparing addresses against it
  // never dereferences the handle, so a stale one is harmless.
  const QWidgetList live = QApplication::allWidgets();
  for (QWidget* widget : live) {
    if (handleOf(widget) != handle) continue;
    if (resolved.size() > kPruneAbove) resolved.removeIf([](const auto& entry) { return entry.value().isNull(); });
    resolved.insert(handle, widget);
    return widget;
  }
  return nullptr;
}

}  // namespace LumoColorCombo::host
