#pragma once

#include <QAccessibleWidget>
#include <QRect>
#include <QString>

#include <vector>

namespace LumoColorCombo::host {

class SurfaceWidget;

// What a screen reader learns about one item of a control's surface: a colour cell or
// a button. The rectangle is in surface pixels.
struct AccessibleItem {
  QString name;
  QString description;
  QAccessible::Role role = QAccessible::ListItem;
  QRect rect;
  bool focused = false;   // where the keyboard is in the control (Enter acts there)
  bool selected = false;  // carries the selection mark
};

// A drawing surface seen as a list of items (cells and buttons), which the control
// draws itself and Qt cannot see. Subclasses read the items from the control behind
// the surface on every call, so a reloaded palette is never stale. The items'
// interfaces are made once per index and kept until this interface goes.
class AccessibleCellList : public QAccessibleWidget {
 public:
  AccessibleCellList(SurfaceWidget* surface, QString fallbackName);
  ~AccessibleCellList() override;
  AccessibleCellList(const AccessibleCellList&) = delete;
  AccessibleCellList& operator=(const AccessibleCellList&) = delete;

  virtual int itemCount() const = 0;
  virtual AccessibleItem item(int index) const = 0;
  // Chooses the item through the control's own input procedures.
  virtual void press(int index) = 0;
  // Whether a key that moves the keyboard also moves the selection.
  virtual bool keysSelect() const { return false; }

  // The item the keyboard is on, or -1.
  int focusedItem() const;
  // The surface's item list while a screen reader listens, else null (then nothing is
  // worth computing).
  static AccessibleCellList* listening(QWidget* surface);
  // Tells the reader where a key moved the keyboard, if it moved from `before`.
  void announceMove(int before);

  SurfaceWidget* surface() const;

  QString text(QAccessible::Text t) const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  QString fallbackName_;
  mutable std::vector<QAccessible::Id> children_;
};

}  // namespace LumoColorCombo::host
