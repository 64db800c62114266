#include "qt/QtColorChooser.h"

#include <QApplication>
#include <QColorDialog>

#include "qt/SystemColors.h"

namespace LumoColorCombo::host {

lumo::OLE_COLOR QtColorChooser::toOleColor(const QColor& color) {
  const QColor rgb = color.toRgb();
  return lumo::RGB(rgb.red(), rgb.green(), rgb.blue());
}

bool QtColorChooser::RunDialog(lumo::OLE_COLOR initial, lumo::OLE_COLOR& chosen) {
  // Qt's own dialog rather than a platform one, so it behaves the same everywhere and
  // runs in the same modal loop as the library's forms.
  QColorDialog dialog(SystemColors::resolve(initial, QApplication::palette()), QApplication::activeWindow());
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  dialog.setWindowModality(Qt::ApplicationModal);
  if (dialog.exec() != QDialog::Accepted) return false;
  chosen = toOleColor(dialog.selectedColor());
  return true;
}

}  // namespace LumoColorCombo::host
