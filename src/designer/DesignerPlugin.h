#pragma once

#include <QList>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace LumoColorCombo::designer {

// One widget as Designer and QUiLoader see it. Every widget of the library is one row
// of the list in DesignerPlugin.cpp.
struct WidgetEntry {
  const char* className;  // the class name written in .ui files
  const char* includeFile;
  const char* toolTip;
  const char* whatsThis;
  const char* group;
  // Makes the widget; `designing` is true when it is placed on a form being designed.
  QWidget* (*create)(QWidget* parent, bool designing);
};

// Serves any row of the list.
class WidgetInterface : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  WidgetInterface(const WidgetEntry& entry, QObject* parent);

  QString name() const override;
  QString group() const override;
  QString toolTip() const override;
  QString whatsThis() const override;
  QString includeFile() const override;
  QIcon icon() const override;
  bool isContainer() const override;
  QString domXml() const override;

  // Designer calls initialize() with its form editor before it creates any widget;
  // QUiLoader never does. So widgets made after it are in design mode, and widgets
  // made without it, by an application loading a form, are in run mode.
  bool isInitialized() const override;
  void initialize(QDesignerFormEditorInterface* core) override;
  QWidget* createWidget(QWidget* parent) override;

 private:
  const WidgetEntry& entry_;
  bool designing_ = false;
};

class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
  explicit WidgetCollection(QObject* parent = nullptr);

  QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

 private:
  QList<QDesignerCustomWidgetInterface*> widgets_;
};

}  // namespace LumoColorCombo::designer
