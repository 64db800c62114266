#include "qt/AccessibleColorGrid.h"

#include <QPointer>
#include <QWidget>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxKeyboard.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {
QString AccessibleColorGrid::fallbackName() const { return QWidget::tr("Colour palette"); }

lumo::ColorBox* AccessibleColorGrid::gridOf(const SurfaceWidget& surface) {
  return dynamic_cast<lumo::ColorBox*>(surface.Listener());
}

int AccessibleColorGrid::cellCount(const lumo::ColorBox& box) {
  return box.Cells() != nullptr ? box.Cells()->Count() : 0;
}

int AccessibleColorGrid::itemCount(const SurfaceWidget& surface) const {
  const lumo::ColorBox* box = gridOf(surface);
  if (box == nullptr) return 0;
  return (box->AllowAutomatic() ? 1 : 0) + cellCount(*box) + (box->AllowMoreColors() ? 1 : 0);
}

AccessibleItem AccessibleColorGrid::item(const SurfaceWidget& surface, int index) const {
  const lumo::ColorBox* box = gridOf(surface);
  if (box == nullptr || index < 0 || index >= itemCount(surface)) return {};
  if (box->AllowAutomatic() && index == 0) {
    return buttonItem(box->AutomaticText(), box->FocusZone() == lumo::focuszone::Automatic, box->AutoRect());
  }
  const int cellIndex = index + (box->AllowAutomatic() ? 0 : 1);  // the cells count from 1
  if (cellIndex <= cellCount(*box)) return cellItem(*box, cellIndex);
  return buttonItem(box->MoreColorsText(), box->FocusZone() == lumo::focuszone::MoreColors, box->MoreRect());
}

AccessibleItem AccessibleColorGrid::cellItem(const lumo::ColorBox& box, int cellIndex) {
  const lumo::CellPtr cell = box.Cells()->Item(cellIndex);
  if (!cell) return {};
  AccessibleItem result;
  // The grid names every unnamed cell after its colour text, so the name is its tooltip.
  result.name = QString::fromStdString(cell->Name());
  // Palette colours are plain RGB; anything else has no colour text to give.
  if (cell->Color() >= 0 && cell->Color() <= 0xFFFFFF) {
    result.description = QString::fromStdString(cell->GetColorStringHex());
  }
  result.rect = area(cell->BoundLeft(), cell->BoundTop(), cell->BoundRight(), cell->BoundBottom());
  // Enter chooses the cell at the hot index, even after a repaint has cleared its frame.
  result.focused = box.FocusZone() == lumo::focuszone::Grid && box.HotIndex() == cellIndex;
  // The grid marks every cell of its colour.
  result.selected = cell->Color() == box.Color();
  return result;
}

AccessibleItem AccessibleColorGrid::buttonItem(const std::string& caption, bool focused, const lumo::Rect& bounds) {
  AccessibleItem result;
  result.name = QString::fromStdString(caption);
  result.role = QAccessible::PushButton;
  result.rect = area(bounds.Left, bounds.Top, bounds.Right, bounds.Bottom);
  result.focused = focused;
  return result;
}

void AccessibleColorGrid::press(SurfaceWidget& surface, int index) const {
  // A left press and release on the item, through the grid's own mouse procedures: the
  // same choice Enter makes there (ChooseCell, Automatic's Click, MoreColorClick), with
  // the same events, and no hot tracking or capture on the way.
  lumo::ColorBox* box = gridOf(surface);
  if (box == nullptr) return;
  const QPoint centre = item(surface, index).rect.center();
  const QPointer<SurfaceWidget> alive(&surface);
  box->MouseDown(lumo::mouse::Left, 0, centre.x(), centre.y());
  // A handler may have replaced or deleted the control in between.
  if (alive && gridOf(surface) == box) box->MouseUp(lumo::mouse::Left, 0, centre.x(), centre.y());
  if (alive) surface.update();
}

}  // namespace LumoColorCombo::host
