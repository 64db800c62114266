#pragma once

#include "qt/AccessibleCellList.h"

namespace lumo {
class ColorHexagon;
}

namespace LumoColorCombo::host {

// The honeycomb's surface as a list of its cells, in the control's order. Names are
// the tooltips the cells show under the pointer; the arrow keys move the selection, so
// the selected cell is also the focused one.
class AccessibleColorHexagon : public AccessibleCellList {
 public:
  explicit AccessibleColorHexagon(SurfaceWidget* surface);

  // The honeycomb control behind a surface, or null.
  static lumo::ColorHexagon* hexagonOf(const SurfaceWidget* surface);

  int itemCount() const override;
  AccessibleItem item(int index) const override;
  void press(int index) override;
  bool keysSelect() const override { return true; }

 private:
  lumo::ColorHexagon* hexagon() const { return hexagonOf(surface()); }
};

}  // namespace LumoColorCombo::host
