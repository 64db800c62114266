#include "qt/AccessibleColorCombo.h"

#include <LumoColorCombo/ColorCombo.h>

#include "colorcombo/ColorCombo.h"
#include "colormodel/CColorboxEl.h"
#include "qt/QtHost.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {
namespace {

const lumo::ColorCombo* CoreOf(const ColorCombo& combo) {
  return dynamic_cast<const lumo::ColorCombo*>(combo.surface()->Listener());
}

}  // namespace

AccessibleColorCombo::AccessibleColorCombo(ColorCombo* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}

QString AccessibleColorCombo::text(QAccessible::Text t) const {
  switch (t) {
    case QAccessible::Value: return value();
    case QAccessible::Description: return colorText();
    default: return QAccessibleWidget::text(t);
  }
}

QString AccessibleColorCombo::value() const {
  const lumo::ColorCombo* core = CoreOf(*static_cast<const ColorCombo*>(widget()));
  if (core == nullptr) return {};
  if (core->IsAutomatic()) return QString::fromStdString(core->AutomaticText());
  const QString name = QString::fromStdString(core->LastColorName());
  return name.isEmpty() ? colorText() : name;
}

QString AccessibleColorCombo::colorText() const {
  const lumo::ColorCombo* core = CoreOf(*static_cast<const ColorCombo*>(widget()));
  // A system colour has no colour text of its own.
  if (core == nullptr || core->Color() < 0 || core->Color() > 0xFFFFFF) return {};
  lumo::CColorboxEl cell(QtHost::instance().runtime().Errors());
  cell.SetColor(core->Color());
  return QString::fromStdString(cell.GetColorStringHex());
}

}  // namespace LumoColorCombo::host
