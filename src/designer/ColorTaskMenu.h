#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

class QAction;
class QWidget;

namespace LumoColorCombo::designer {

// The task menu Designer shows for a placed widget of the library (right click, and
// double click for the first entry): for each colour property, "Choose Colour..."
// opens the library's own More Colors dialog over Designer's window, and a submenu
// offers the system colours by name. The choice is written through the form window's
// cursor, so Designer records it for undo and the .ui keeps the same number the
// property editor shows.
class ColorTaskMenu : public QObject, public QDesignerTaskMenuExtension {
  Q_OBJECT
  Q_INTERFACES(QDesignerTaskMenuExtension)

 public:
  ColorTaskMenu(QWidget* widget, QObject* parent);

  QAction* preferredEditAction() const override;
  QList<QAction*> taskActions() const override;

  // The names of the widget's colour properties, in the order the class declares them.
  static QStringList colorProperties(const QWidget& widget);

 private:
  void addActions(const QString& property);
  void chooseColour(const QString& property);
  void setColour(const QString& property, qint32 value);

  QPointer<QWidget> widget_;
  QList<QAction*> actions_;
};

// Makes a ColorTaskMenu for any widget that has a colour property.
class ColorTaskMenuFactory : public QExtensionFactory {
  Q_OBJECT

 public:
  explicit ColorTaskMenuFactory(QExtensionManager* parent);

 protected:
  QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;
};

}  // namespace LumoColorCombo::designer
