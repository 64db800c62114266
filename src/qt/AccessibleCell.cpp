#include "qt/AccessibleCell.h"

#include <QWidget>

#include "qt/AccessibleCellList.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {

bool AccessibleCell::isValid() const { return list_->isValid() && index_ < list_->itemCount(); }

QWindow* AccessibleCell::window() const { return list_->window(); }

QAccessibleInterface* AccessibleCell::parent() const { return list_; }

QString AccessibleCell::text(QAccessible::Text t) const {
  if (!isValid()) return {};
  switch (t) {
    case QAccessible::Name: return list_->item(index_).name;
    case QAccessible::Description: return list_->item(index_).description;
    default: return {};
  }
}

QRect AccessibleCell::rect() const {
  if (!isValid()) return {};
  const QRect local = list_->item(index_).rect;
  return {list_->surface()->mapToGlobal(local.topLeft()), local.size()};
}

QAccessible::Role AccessibleCell::role() const {
  return isValid() ? list_->item(index_).role : QAccessible::NoRole;
}

QAccessible::State AccessibleCell::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const AccessibleItem item = list_->item(index_);
  const QWidget* surface = list_->surface();
  state.focusable = true;
  state.focused = item.focused && surface->hasFocus();
  state.selectable = item.role == QAccessible::ListItem;
  state.selected = item.selected;
  state.invisible = !surface->isVisible();
  state.disabled = !surface->isEnabled();
  return state;
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleCell::actionNames() const { return {pressAction()}; }

void AccessibleCell::doAction(const QString& actionName) {
  if (actionName == pressAction() && isValid()) list_->press(index_);
}

}  // namespace LumoColorCombo::host
