#include "designer/ColorTaskMenu.h"

#include <QAction>
#include <QMenu>
#include <QMetaProperty>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>
#include <QWidget>

#include <LumoColorCombo/LumoColorCombo.h>
#include <LumoColorCombo/MoreColorsDialog.h>

namespace LumoColorCombo::designer {

ColorTaskMenu::ColorTaskMenu(QWidget* widget, QObject* parent) : QObject(parent), widget_(widget) {
  for (const QString& property : colorProperties(*widget)) addActions(property);
}

// The published colours: the class's own whole-number properties named "...Color"
// (OLE_COLOR is a qint32 to the meta-object, so the type alone does not tell them).
QStringList ColorTaskMenu::colorProperties(const QWidget& widget) {
  QStringList names;
  const QMetaObject* meta = widget.metaObject();
  for (int index = meta->propertyOffset(); index < meta->propertyCount(); ++index) {
    const QMetaProperty property = meta->property(index);
    if (property.metaType() == QMetaType::fromType<OLE_COLOR>() && property.isWritable() &&
        QByteArray(property.name()).endsWith("Color")) {
      names.append(QString::fromLatin1(property.name()));
    }
  }
  return names;
}

void ColorTaskMenu::addActions(const QString& property) {
  auto* choose = new QAction(tr("Choose Colour (%1)...").arg(property), this);
  connect(choose, &QAction::triggered, this, [this, property] { chooseColour(property); });
  actions_.append(choose);

  // The submenu belongs to its action, which this object owns.
  auto* system = new QAction(tr("System Colour (%1)").arg(property), this);
  auto* menu = new QMenu;
  connect(system, &QObject::destroyed, menu, &QObject::deleteLater);
  for (const auto& [name, value] : SystemColorNames()) {
    menu->addAction(name, this, [this, property, value = value] { setColour(property, value); });
  }
  system->setMenu(menu);
  actions_.append(system);
}

QAction* ColorTaskMenu::preferredEditAction() const { return actions_.isEmpty() ? nullptr : actions_.first(); }
QList<QAction*> ColorTaskMenu::taskActions() const { return actions_; }

// The library's own dialog, over the window of the widget being designed.
void ColorTaskMenu::chooseColour(const QString& property) {
  if (widget_.isNull()) return;
  const qint32 current = widget_->property(property.toLatin1().constData()).toInt();
  MoreColorsDialog dialog(widget_);
  dialog.setAllowAutomatic(false);
  dialog.setColor(current);
  dialog.setCurrentColor(current);
  const QVariantList result = dialog.exec();
  if (result.size() > 1 && result.at(0).toBool()) setColour(property, result.at(1).toInt());
}

void ColorTaskMenu::setColour(const QString& property, qint32 value) {
  if (widget_.isNull()) return;
  QDesignerFormWindowInterface* form = QDesignerFormWindowInterface::findFormWindow(widget_);
  if (form == nullptr) return;
  form->cursor()->setWidgetProperty(widget_, property, value);
}

ColorTaskMenuFactory::ColorTaskMenuFactory(QExtensionManager* parent) : QExtensionFactory(parent) {}

QObject* ColorTaskMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const {
  if (iid != Q_TYPEID(QDesignerTaskMenuExtension)) return nullptr;
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || ColorTaskMenu::colorProperties(*widget).isEmpty()) return nullptr;
  return new ColorTaskMenu(widget, parent);
}

}  // namespace LumoColorCombo::designer
