#pragma once

#include "qt/AccessibleCellSource.h"

namespace lumo {
class ColorHexagon;
}

namespace LumoColorCombo::host {

// The honeycomb's items: its cells in the control's order, named by the tooltips they
// show under the pointer. The arrow keys move the selection, so the selected cell is
// also the focused one.
class AccessibleColorHexagon : public AccessibleCellSource {
 public:
  bool serves(const SurfaceWidget& surface) const override { return hexagonOf(surface) != nullptr; }
  QString fallbackName() const override;
  int itemCount(const SurfaceWidget& surface) const override;
  AccessibleItem item(const SurfaceWidget& surface, int index) const override;
  void press(SurfaceWidget& surface, int index) const override;
  bool keysSelect() const override { return true; }

 private:
  static lumo::ColorHexagon* hexagonOf(const SurfaceWidget& surface);
};

}  // namespace LumoColorCombo::host
