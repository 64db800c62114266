#include "qt/AccessibleColorHexagon.h"

#include <QPointer>
#include <QWidget>

#include "colorhexagon/ColorHexagon.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {

QString AccessibleColorHexagon::fallbackName() const { return QWidget::tr("Honeycomb colour picker"); }

lumo::ColorHexagon* AccessibleColorHexagon::hexagonOf(const SurfaceWidget& surface) {
  return dynamic_cast<lumo::ColorHexagon*>(surface.Listener());
}

int AccessibleColorHexagon::itemCount(const SurfaceWidget& surface) const {
  const lumo::ColorHexagon* control = hexagonOf(surface);
  return control != nullptr && control->Cells() != nullptr ? control->Cells()->Count() : 0;
}

AccessibleItem AccessibleColorHexagon::item(const SurfaceWidget& surface, int index) const {
  if (index < 0 || index >= itemCount(surface)) return {};
  const lumo::ColorHexagon& control = *hexagonOf(surface);
  const lumo::CellPtr cell = control.Cells()->Item(index + 1);
  if (!cell) return {};
  AccessibleItem result;
  result.name = QString::fromStdString(control.ToolTipOf(*cell));
  result.description = QString::fromStdString(cell->GetColorStringHex());
  result.rect = area(cell->BoundLeft(), cell->BoundTop(), cell->BoundRight(), cell->BoundBottom());
  result.selected = cell == control.SelectedCell();
  result.focused = result.selected;
  return result;
}

void AccessibleColorHexagon::press(SurfaceWidget& surface, int index) const {
  // A left click on the cell through the control's own mouse procedures: the same
  // selection, ColorChanged and ColorClick as a click with the mouse.
  lumo::ColorHexagon* control = hexagonOf(surface);
  if (control == nullptr) return;
  const QPoint centre = item(surface, index).rect.center();
  const QPointer<SurfaceWidget> alive(&surface);
  control->MouseDown(lumo::mouse::Left, 0, centre.x(), centre.y());
  if (alive && hexagonOf(surface) == control) control->MouseUp(lumo::mouse::Left, 0, centre.x(), centre.y());
}

}  // namespace LumoColorCombo::host
