#include "qt/AccessibleColorHexagon.h"

#include <QPointer>

#include "colorhexagon/ColorHexagon.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {

AccessibleColorHexagon::AccessibleColorHexagon(SurfaceWidget* surface)
    : AccessibleCellList(surface, QWidget::tr("Honeycomb colour picker")) {}

lumo::ColorHexagon* AccessibleColorHexagon::hexagonOf(const SurfaceWidget* surface) {
  return dynamic_cast<lumo::ColorHexagon*>(surface->Listener());
}

int AccessibleColorHexagon::itemCount() const {
  const lumo::CColorboxCol* cells = hexagon() != nullptr ? hexagon()->Cells() : nullptr;
  return cells != nullptr ? cells->Count() : 0;
}

AccessibleItem AccessibleColorHexagon::item(int index) const {
  if (index < 0 || index >= itemCount()) return {};
  const lumo::ColorHexagon& control = *hexagon();
  const lumo::CellPtr cell = control.Cells()->Item(index + 1);
  if (!cell) return {};
  AccessibleItem result;
  result.name = QString::fromStdString(control.ToolTipOf(*cell));
  result.description = QString::fromStdString(cell->GetColorStringHex());
  result.rect = QRect(QPoint(cell->BoundLeft(), cell->BoundTop()), QPoint(cell->BoundRight(), cell->BoundBottom()));
  result.selected = cell == control.SelectedCell();
  result.focused = result.selected;
  return result;
}

void AccessibleColorHexagon::press(int index) {
  // A left click on the cell through the control's own mouse procedures: the same
  // selection, ColorChanged and ColorClick as a click with the mouse.
  lumo::ColorHexagon* control = hexagon();
  if (control == nullptr) return;
  const QPoint centre = item(index).rect.center();
  const QPointer<SurfaceWidget> alive(surface());
  control->MouseDown(lumo::mouse::Left, 0, centre.x(), centre.y());
  if (alive && hexagon() == control) control->MouseUp(lumo::mouse::Left, 0, centre.x(), centre.y());
}

}  // namespace LumoColorCombo::host
