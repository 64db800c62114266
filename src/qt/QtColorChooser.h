#pragma once

#include "colormodel/ColorChooser.h"

class QColor;

namespace LumoColorCombo::host {

// The system colour chooser on a QColorDialog, shown modally over the active window
// and opened on the colour it last had.
class QtColorChooser : public lumo::ColorChooser {
 public:
  static lumo::OLE_COLOR toOleColor(const QColor& color);

 protected:
  bool RunDialog(lumo::OLE_COLOR initial, lumo::OLE_COLOR& chosen) override;
};

}  // namespace LumoColorCombo::host
