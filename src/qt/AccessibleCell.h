#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>

namespace LumoColorCombo::host {

class AccessibleCellList;

// One item of a surface's list (a colour cell or a button) as a screen reader sees
// it: everything is read from the list at the time of asking; its press action
// chooses the item through the control's own input.
class AccessibleCell : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleCell(AccessibleCellList* list, int index) : list_(list), index_(index) {}

  AccessibleCellList* list() const { return list_; }
  int index() const { return index_; }

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QString text(QAccessible::Text t) const override;
  void setText(QAccessible::Text /*t*/, const QString& /*text*/) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& actionName) override;
  QStringList keyBindingsForAction(const QString& /*actionName*/) const override { return {}; }

 private:
  AccessibleCellList* list_;
  int index_;
};

}  // namespace LumoColorCombo::host
