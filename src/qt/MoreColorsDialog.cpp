#include <LumoColorCombo/MoreColorsDialog.h>

#include "colormodel/Runtime.h"
#include "morecolors/frmPopup.h"
#include "qt/QtHost.h"
#include "qt/VariantConversion.h"

namespace LumoColorCombo {

MoreColorsDialog::MoreColorsDialog(QObject* parent) : QObject(parent) {}

QVariantList MoreColorsDialog::exec() {
  lumo::Runtime& runtime = host::QtHost::instance().runtime();
  lumo::frmPopup& dialog = lumo::frmPopup::Instance(runtime);
  dialog.Load();
  // The order the drop-down hands its settings over in: the colour comes after the
  // automatic flag, so the honeycomb marks it.
  dialog.SetAllowAutomatic(allowAutomatic_);
  dialog.SetAutomaticText(automaticText_.toStdString());
  dialog.SetAutoColor(autoColor_);
  dialog.SetMoreColorsText(moreColorsText_.toStdString());
  dialog.SetIsAutomatic(isAutomatic_);
  dialog.SetColor(color_);
  dialog.SetCurrentColor(currentColor_);
  dialog.Show();
  return popupResult();
}

QVariantList MoreColorsDialog::popupResult() {
  QVariantList result;
  for (const lumo::Variant& entry : host::QtHost::instance().runtime().PopupResult()) {
    result.append(host::VariantConversion::toQVariant(entry));
  }
  return result;
}

}  // namespace LumoColorCombo
