#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>

namespace LumoColorCombo::host {

class SurfaceWidget;

// What a screen reader learns about one item of a control's surface: a colour cell or
// a button. The rectangle is in surface pixels.
struct AccessibleItem {
  QString name;
  QString description;
  QAccessible::Role role = QAccessible::ListItem;
  QRect rect;
  bool focused = false;   // where the keyboard is in the control
  bool selected = false;  // carries the selection mark
};

// The items of one kind of control, read from the control behind a surface on every
// call, so a reloaded palette or a control made again is never stale.
class AccessibleCellSource {
 public:
  virtual ~AccessibleCellSource() = default;

  // Whether the surface's control is of this kind.
  virtual bool serves(const SurfaceWidget& surface) const = 0;
  // The list's name when neither the surface nor its owner has one.
  virtual QString fallbackName() const = 0;
  virtual int itemCount(const SurfaceWidget& surface) const = 0;
  virtual AccessibleItem item(const SurfaceWidget& surface, int index) const = 0;
  // Chooses the item through the control's own input procedures.
  virtual void press(SurfaceWidget& surface, int index) const = 0;
  // Whether a key that moves the keyboard also moves the selection.
  virtual bool keysSelect() const { return false; }

 protected:
  // An item's rectangle from the control's bounds, which include every edge.
  static QRect area(int left, int top, int right, int bottom) { return QRect(QPoint(left, top), QPoint(right, bottom)); }
};

}  // namespace LumoColorCombo::host
