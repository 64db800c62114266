#pragma once

#include <string>

#include "colormodel/Geometry.h"
#include "qt/AccessibleCellSource.h"

namespace lumo {
class ColorBox;
}

namespace LumoColorCombo::host {

// The palette grid's items: the Automatic button (when offered), the cells in the
// control's order, the More Colors button (when offered); the order the Right arrow
// walks. Names are the cells' tooltip texts and the buttons' captions; the focused item
// is where Enter would act. The grid may be a ColorBox widget's or a combo drop-down's.
class AccessibleColorGrid : public AccessibleCellSource {
 public:
  bool serves(const SurfaceWidget& surface) const override { return gridOf(surface) != nullptr; }
  QString fallbackName() const override;
  int itemCount(const SurfaceWidget& surface) const override;
  AccessibleItem item(const SurfaceWidget& surface, int index) const override;
  void press(SurfaceWidget& surface, int index) const override;

 private:
  static lumo::ColorBox* gridOf(const SurfaceWidget& surface);
  static int cellCount(const lumo::ColorBox& box);
  static AccessibleItem cellItem(const lumo::ColorBox& box, int cellIndex);
  static AccessibleItem buttonItem(const std::string& caption, bool focused, const lumo::Rect& bounds);
};

}  // namespace LumoColorCombo::host
