#pragma once

#include <string>

#include "colormodel/Geometry.h"
#include "qt/AccessibleCellList.h"

namespace lumo {
class ColorBox;
}

namespace LumoColorCombo::host {

// The palette grid's surface as a list: the Automatic button (when offered), the cells
// in the control's order, the More Colors button (when offered); the order the Right
// arrow walks. Names are the cells' tooltip texts and the buttons' captions; the
// focused item is where Enter would act. The grid may be a ColorBox widget's or the
// one in a combo's drop-down.
class AccessibleColorGrid : public AccessibleCellList {
 public:
  explicit AccessibleColorGrid(SurfaceWidget* surface);

  // The grid control behind a surface, or null.
  static lumo::ColorBox* gridOf(const SurfaceWidget* surface);

  int itemCount() const override;
  AccessibleItem item(int index) const override;
  void press(int index) override;

 private:
  lumo::ColorBox* grid() const { return gridOf(surface()); }
  bool hasAutomatic() const;
  bool hasMoreColors() const;
  int cellCount() const;
  AccessibleItem cellItem(int cellIndex) const;
  AccessibleItem buttonItem(const std::string& caption, bool focused, const lumo::Rect& bounds) const;
};

}  // namespace LumoColorCombo::host
