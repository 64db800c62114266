#pragma once

#include <QColor>
#include <QList>
#include <QPair>
#include <QPalette>
#include <QString>

#include <LumoColorCombo/LumoColorCombo.h>

#include "colormodel/Types.h"

namespace LumoColorCombo::host {

// Turns a colour value into a QColor. An ordinary value carries red in its low byte,
// green in the next and blue in the third; a system colour (&H80000000 + index) is
// looked up in the palette given, so the controls follow the widget's palette and a
// dark theme darkens them too.
//
// The palette roles stand in for the system colour table: the 3-D roles
// (Light, Midlight, Button, Mid, Dark, Shadow) are Qt's own model of the same bevel
// colours, so edges keep their light-to-dark order whatever the theme.
class SystemColors {
 public:
  static QColor resolve(lumo::OLE_COLOR color, const QPalette& palette);

  // The colour of a system colour index (0 = scroll bar ... 30 = menu bar). Index 25
  // has no meaning and, like any index outside 0-30, resolves to the fallback colour,
  // black, so an unknown index still draws.
  static QColor systemColor(int index, const QPalette& palette);

  // Every system colour with a meaning, by name, in index order.
  static QList<QPair<QString, OLE_COLOR>> named();

  // An ordinary colour value's components, ignoring the top byte.
  static QColor fromRgbValue(lumo::OLE_COLOR color);
};

}  // namespace LumoColorCombo::host
