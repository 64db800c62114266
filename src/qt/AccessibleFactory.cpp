#include "qt/AccessibleFactory.h"

#include <QAccessible>

#include <LumoColorCombo/ColorCombo.h>

#include "qt/AccessibleCellList.h"
#include "qt/AccessibleColorCombo.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {

void AccessibleFactory::install() {
  static const bool installed = [] {
    QAccessible::installFactory(&AccessibleFactory::create);
    return true;
  }();
  (void)installed;
}

QAccessibleInterface* AccessibleFactory::create(const QString& key, QObject* object) {
  // Qt asks with each class name of the object's chain, most derived first.
  if (key == QLatin1String(SurfaceWidget::staticMetaObject.className())) {
    return new AccessibleCellList(static_cast<SurfaceWidget*>(object));
  }
  if (key == QLatin1String(ColorCombo::staticMetaObject.className())) {
    return new AccessibleColorCombo(static_cast<ColorCombo*>(object));
  }
  return nullptr;
}

}  // namespace LumoColorCombo::host
