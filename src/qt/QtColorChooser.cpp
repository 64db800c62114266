#include "qt/QtColorChooser.h"

#include <QApplication>
#include <QColorDialog>
#include <QPointer>

#include "qt/DialogOwner.h"
#include "qt/QtMessageBox.h"
#include "qt/SystemColors.h"

namespace LumoColorCombo::host {

lumo::OLE_COLOR QtColorChooser::toOleColor(const QColor& color) {
  const QColor rgb = color.toRgb();
  return lumo::RGB(rgb.red(), rgb.green(), rgb.blue());
}

bool QtColorChooser::RunDialog(lumo::OLE_COLOR initial, lumo::OLE_COLOR& chosen) {
  // Qt's own dialog rather than a platform one, so it behaves the same everywhere and
  // runs in the same modal loop as the library's forms. Parentless on the heap, like
  // the error box: the host may delete the window it stands over while it runs.
  QPointer<QColorDialog> dialog = new QColorDialog(SystemColors::resolve(initial, QApplication::palette()));
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  dialog->setWindowModality(Qt::ApplicationModal);
  QtMessageBox::StandOver(*dialog, DialogOwner::window());
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (dialog.isNull()) return false;
  if (accepted) chosen = toOleColor(dialog->selectedColor());
  delete dialog.data();
  return accepted;
}

}  // namespace LumoColorCombo::host
