#pragma once

#include <QAccessibleWidget>

#include <vector>

#include "qt/AccessibleCellSource.h"

namespace LumoColorCombo::host {

// Any drawing surface as a screen reader sees it. A grid's or a honeycomb's surface is a
// list of the items its control draws, which Qt cannot see; any other surface is a
// plain client area. Which it is, is asked of the surface's control on every call: Qt
// may make this interface before the control is attached (a form's children are), and
// keeps it. The items' interfaces are made once per index and kept until this goes.
class AccessibleCellList : public QAccessibleWidget {
 public:
  explicit AccessibleCellList(SurfaceWidget* surface);
  ~AccessibleCellList() override;
  AccessibleCellList(const AccessibleCellList&) = delete;
  AccessibleCellList& operator=(const AccessibleCellList&) = delete;

  SurfaceWidget* surface() const;
  int itemCount() const;
  AccessibleItem item(int index) const;
  void press(int index);

  // The item the keyboard is on, or -1.
  int focusedItem() const;
  // The surface's list while a screen reader listens, else null (then nothing is worth
  // computing).
  static AccessibleCellList* listening(QWidget* surface);
  // Tells the reader where a key moved the keyboard, if it moved from `before`.
  void announceMove(int before);

  QAccessible::Role role() const override;
  QString text(QAccessible::Text t) const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  // The items' kind for the surface's control now, or null.
  const AccessibleCellSource* source() const;

  mutable std::vector<QAccessible::Id> children_;
};

}  // namespace LumoColorCombo::host
