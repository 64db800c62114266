#pragma once

#include "colormodel/Types.h"

class QWidget;

namespace LumoColorCombo::host {

// Window handles as the core sees them: the widget's address. A handle is turned back
// into a widget only by finding it among the widgets Qt knows to be alive, so a handle
// kept past its widget's deletion resolves to null instead of a dangling pointer. A
// handle once resolved is remembered with a guard, so resolving it again is a lookup.
class WidgetHandles {
 public:
  static lumo::WindowHandle handleOf(const QWidget* widget);
  // The live widget with that handle, or null for 0 and for a widget that is gone.
  static QWidget* widgetOf(lumo::WindowHandle handle);
};

}  // namespace LumoColorCombo::host
