#include <LumoColorCombo/MoreColorsDialog.h>

#include "colormodel/Runtime.h"
#include "morecolors/frmPopup.h"
#include "qt/DialogOwner.h"
#include "qt/QtHost.h"
#include "qt/VariantConversion.h"

namespace LumoColorCombo {
namespace {

QVariantList ResultOf(lumo::Runtime& runtime) {
  QVariantList result;
  for (const lumo::Variant& entry : runtime.PopupResult()) result.append(host::VariantConversion::toQVariant(entry));
  return result;
}

}  // namespace

MoreColorsDialog::MoreColorsDialog(QObject* parent) : MoreColorsDialog(host::QtHost::instance(), parent) {}

MoreColorsDialog::MoreColorsDialog(Runtime& runtime, QObject* parent) : MoreColorsDialog(runtime.host(), parent) {}

MoreColorsDialog::MoreColorsDialog(host::QtHost& host, QObject* parent) : QObject(parent), host_(&host) {}

QVariantList MoreColorsDialog::exec() {
  lumo::Runtime& runtime = host_->runtime();
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
  {
    const host::DialogOwner owner(qobject_cast<QWidget*>(parent()));
    dialog.Show();
  }
  return ResultOf(runtime);
}

QVariantList MoreColorsDialog::popupResult() { return ResultOf(host::QtHost::instance().runtime()); }

}  // namespace LumoColorCombo
