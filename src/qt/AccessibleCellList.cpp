#include "qt/AccessibleCellList.h"

#include "qt/AccessibleCell.h"
#include "qt/AccessibleColorGrid.h"
#include "qt/AccessibleColorHexagon.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {

AccessibleCellList::AccessibleCellList(SurfaceWidget* surface) : QAccessibleWidget(surface, QAccessible::List) {}

AccessibleCellList::~AccessibleCellList() {
  for (const QAccessible::Id id : children_) {
    if (id != 0) QAccessible::deleteAccessibleInterface(id);
  }
}

const AccessibleCellSource* AccessibleCellList::source() const {
  static const AccessibleColorGrid grid;
  static const AccessibleColorHexagon honeycomb;
  for (const AccessibleCellSource* kind : {static_cast<const AccessibleCellSource*>(&grid),
                                           static_cast<const AccessibleCellSource*>(&honeycomb)}) {
    if (kind->serves(*surface())) return kind;
  }
  return nullptr;
}

SurfaceWidget* AccessibleCellList::surface() const { return static_cast<SurfaceWidget*>(widget()); }

int AccessibleCellList::itemCount() const {
  const AccessibleCellSource* kind = source();
  return kind != nullptr ? kind->itemCount(*surface()) : 0;
}

AccessibleItem AccessibleCellList::item(int index) const {
  const AccessibleCellSource* kind = source();
  return kind != nullptr ? kind->item(*surface(), index) : AccessibleItem{};
}

void AccessibleCellList::press(int index) {
  if (const AccessibleCellSource* kind = source()) kind->press(*surface(), index);
}

QAccessible::Role AccessibleCellList::role() const {
  return source() != nullptr ? QAccessible::List : QAccessible::Client;
}

QString AccessibleCellList::text(QAccessible::Text t) const {
  const AccessibleCellSource* kind = source();
  if (t != QAccessible::Name || kind == nullptr) return QAccessibleWidget::text(t);
  // The surface carries no name of its own: the control's name is the list's.
  if (!widget()->accessibleName().isEmpty()) return widget()->accessibleName();
  const QWidget* owner = widget()->parentWidget();
  if (owner != nullptr && !owner->accessibleName().isEmpty()) return owner->accessibleName();
  return kind->fallbackName();
}

int AccessibleCellList::childCount() const { return itemCount(); }

QAccessibleInterface* AccessibleCellList::child(int index) const {
  if (index < 0 || index >= itemCount()) return nullptr;
  if (children_.size() <= static_cast<std::size_t>(index)) children_.resize(index + 1, 0);
  QAccessible::Id& id = children_[index];
  if (id == 0) {
    id = QAccessible::registerAccessibleInterface(new AccessibleCell(const_cast<AccessibleCellList*>(this), index));
  }
  return QAccessible::accessibleInterface(id);
}

int AccessibleCellList::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const AccessibleCell*>(child);
  return cell != nullptr && cell->list() == this && cell->isValid() ? cell->index() : -1;
}

QAccessibleInterface* AccessibleCellList::childAt(int x, int y) const {
  const QPoint local = widget()->mapFromGlobal(QPoint(x, y));
  for (int i = 0; i < itemCount(); ++i) {
    if (item(i).rect.contains(local)) return child(i);
  }
  return nullptr;
}

QAccessibleInterface* AccessibleCellList::focusChild() const {
  return widget()->hasFocus() ? child(focusedItem()) : nullptr;
}

int AccessibleCellList::focusedItem() const {
  for (int i = 0; i < itemCount(); ++i) {
    if (item(i).focused) return i;
  }
  return -1;
}

AccessibleCellList* AccessibleCellList::listening(QWidget* surface) {
  if (!QAccessible::isActive()) return nullptr;
  return dynamic_cast<AccessibleCellList*>(QAccessible::queryAccessibleInterface(surface));
}

void AccessibleCellList::announceMove(int before) {
  const int now = focusedItem();
  if (now < 0 || now == before) return;
  QAccessibleEvent focus(widget(), QAccessible::Focus);
  focus.setChild(now);
  QAccessible::updateAccessibility(&focus);
  const AccessibleCellSource* kind = source();
  if (kind == nullptr || !kind->keysSelect()) return;
  QAccessibleEvent selection(widget(), QAccessible::Selection);
  selection.setChild(now);
  QAccessible::updateAccessibility(&selection);
}

}  // namespace LumoColorCombo::host
