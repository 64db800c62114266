// Forms saved by Qt Designer load at run time through QUiLoader and the plugin:
// the right widgets with their saved properties, in run mode; the same plugin puts
// the widgets it makes for Designer in design mode.
#include <QAction>
#include <QBuffer>
#include <QMenu>
#include <QPluginLoader>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

#include <LumoColorCombo/LumoColorCombo.h>

namespace {

const char kForm[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <property name="geometry"><rect><x>0</x><y>0</y><width>500</width><height>400</height></rect></property>
  <widget class="LumoColorCombo::ColorBox" name="colorBox">
   <property name="PickStyle"><enum>LumoColorCombo::cpsPalette40</enum></property>
   <property name="Color"><number>255</number></property>
   <property name="AllowMoreColors"><bool>false</bool></property>
  </widget>
  <widget class="LumoColorCombo::ColorHexagon" name="colorHexagon">
   <property name="geometry"><rect><x>250</x><y>0</y><width>200</width><height>200</height></rect></property>
   <property name="IsAutomatic"><bool>false</bool></property>
   <property name="Color"><number>16711680</number></property>
  </widget>
 </widget>
 <customwidgets>
  <customwidget><class>LumoColorCombo::ColorBox</class><extends>QWidget</extends><header>LumoColorCombo/ColorBox.h</header></customwidget>
  <customwidget><class>LumoColorCombo::ColorHexagon</class><extends>QWidget</extends><header>LumoColorCombo/ColorHexagon.h</header></customwidget>
 </customwidgets>
</ui>
)";

// The widgets come from the plugin's own copy of the library, so they are told apart
// by class name rather than by qobject_cast.
QWidget* Child(QWidget& form, const char* className, const char* objectName) {
  auto* widget = form.findChild<QWidget*>(QString::fromLatin1(objectName));
  return widget != nullptr && qstrcmp(widget->metaObject()->className(), className) == 0 ? widget : nullptr;
}

// Designer's form editor as far as the plugin uses it: its extension manager.
class FormEditor : public QDesignerFormEditorInterface {
 public:
  FormEditor() { setExtensionManager(new QExtensionManager(this)); }
};

bool HasGrabberWithin(const QWidget* widget) {
  return QWidget::mouseGrabber() != nullptr && widget->isAncestorOf(QWidget::mouseGrabber());
}

}  // namespace

class UiLoaderTest : public QObject {
  Q_OBJECT

 private slots:
  void loadsTheSavedWidgetsAndPropertiesInRunMode() {
    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(LUMO_DESIGNER_PLUGIN_DIR));

    QBuffer ui;
    ui.setData(kForm);
    ui.open(QIODevice::ReadOnly);
    const std::unique_ptr<QWidget> form(loader.load(&ui));
    QVERIFY2(form != nullptr, qPrintable(loader.errorString()));

    QWidget* box = Child(*form, "LumoColorCombo::ColorBox", "colorBox");
    QWidget* hexagon = Child(*form, "LumoColorCombo::ColorHexagon", "colorHexagon");
    QVERIFY(box != nullptr && hexagon != nullptr);
    QCOMPARE(box->property("PickStyle").toInt(), int{LumoColorCombo::cpsPalette40});
    QCOMPARE(box->property("Color").toInt(), 255);
    QCOMPARE(box->property("AllowMoreColors").toBool(), false);
    QCOMPARE(hexagon->property("IsAutomatic").toBool(), false);
    QCOMPARE(hexagon->property("Color").toInt(), 16711680);

    // Run mode: a shown grid takes the mouse.
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    QVERIFY(HasGrabberWithin(box));
  }

  // Runs last: once Designer's form editor has initialised the plugin, every widget
  // it makes in this process is made for a designed form, with a task menu that edits
  // each of its colour properties.
  void widgetsMadeForDesignerAreInDesignModeWithAColourTaskMenu() {
    QPluginLoader plugin(QStringLiteral(LUMO_DESIGNER_PLUGIN));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    QVERIFY2(collection != nullptr, qPrintable(plugin.errorString()));
    QDesignerCustomWidgetInterface* boxInterface = nullptr;
    for (QDesignerCustomWidgetInterface* widget : collection->customWidgets()) {
      if (widget->name() == QStringLiteral("LumoColorCombo::ColorBox")) boxInterface = widget;
    }
    QVERIFY(boxInterface != nullptr);

    FormEditor core;
    boxInterface->initialize(&core);
    QVERIFY(boxInterface->isInitialized());
    QWidget form;
    form.resize(300, 300);
    QWidget* box = boxInterface->createWidget(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(box->isVisible());
    QVERIFY(!HasGrabberWithin(box));

    auto* menu = qt_extension<QDesignerTaskMenuExtension*>(core.extensionManager(), box);
    QVERIFY(menu != nullptr);
    QStringList texts;
    for (QAction* action : menu->taskActions()) texts << action->text();
    QCOMPARE(texts, QStringList({"Choose Colour (AutoColor)...", "System Colour (AutoColor)",
                                 "Choose Colour (Color)...", "System Colour (Color)"}));
    QCOMPARE(menu->preferredEditAction(), menu->taskActions().at(0));
    QVERIFY(menu->taskActions().at(1)->menu() != nullptr);
    QCOMPARE(menu->taskActions().at(1)->menu()->actions().size(), LumoColorCombo::SystemColorNames().size());
  }
};

QTEST_MAIN(UiLoaderTest)
#include "ui_loader_test.moc"
