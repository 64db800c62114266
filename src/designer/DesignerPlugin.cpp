#include "designer/DesignerPlugin.h"

#include <memory>

#include <QIcon>
#include <QWidget>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/ColorSample.h>

#include "designer/ColorTaskMenu.h"

namespace LumoColorCombo::designer {
namespace {

// A widget that knows a design mode enters it; one that doesn't behaves alike in both.
template <class Widget>
QWidget* create(QWidget* parent, bool designing) {
  auto* widget = new Widget(parent);
  if constexpr (requires { widget->setDesignMode(designing); }) widget->setDesignMode(designing);
  return widget;
}

// The widgets of the library, in the order of Designer's widget box.
const WidgetEntry kWidgets[] = {
    {"LumoColorCombo::ColorCombo", "<LumoColorCombo/ColorCombo.h>", "Colour combo",
     "A field showing the current colour that drops a palette grid under itself; previews the colour under "
     "the pointer and raises Before/After events for each pick.",
     "LumoColorCombo", &create<ColorCombo>},
    {"LumoColorCombo::ColorBox", "<LumoColorCombo/ColorBox.h>", "Palette colour grid",
     "A grid of one of fifteen palettes, with optional \"Automatic\" and \"More Colors...\" buttons.",
     "LumoColorCombo", &create<ColorBox>},
    {"LumoColorCombo::ColorHexagon", "<LumoColorCombo/ColorHexagon.h>", "Honeycomb colour picker",
     "A honeycomb of 127 colour cells and a grey row, with a caption naming the colour under the pointer.",
     "LumoColorCombo", &create<ColorHexagon>},
    {"LumoColorCombo::ColorSample", "<LumoColorCombo/ColorSample.h>", "Colour sample",
     "A sample text in a chosen text colour on a chosen background, to preview a colour pair.",
     "LumoColorCombo", &create<ColorSample>},
};

}  // namespace

WidgetInterface::WidgetInterface(const WidgetEntry& entry, QObject* parent) : QObject(parent), entry_(entry) {}

QString WidgetInterface::name() const { return QString::fromUtf8(entry_.className); }
QString WidgetInterface::group() const { return QString::fromUtf8(entry_.group); }
QString WidgetInterface::toolTip() const { return QString::fromUtf8(entry_.toolTip); }
QString WidgetInterface::whatsThis() const { return QString::fromUtf8(entry_.whatsThis); }
QString WidgetInterface::includeFile() const { return QString::fromUtf8(entry_.includeFile); }
QIcon WidgetInterface::icon() const { return {}; }
bool WidgetInterface::isContainer() const { return false; }

// The widgets size themselves to their content, so a new one on a form starts at the
// size a freshly made widget takes; the object name is the class name in lower camel case.
QString WidgetInterface::domXml() const {
  QWidget holder;
  const std::unique_ptr<QWidget> probe(entry_.create(&holder, true));
  const QString className = name();
  QString objectName = className.mid(className.lastIndexOf(QLatin1Char(':')) + 1);
  objectName[0] = objectName[0].toLower();
  return QStringLiteral(
             "<ui language=\"c++\">\n"
             " <widget class=\"%1\" name=\"%2\">\n"
             "  <property name=\"geometry\">\n"
             "   <rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>\n"
             "  </property>\n"
             " </widget>\n"
             "</ui>\n")
      .arg(className, objectName)
      .arg(probe->width())
      .arg(probe->height());
}

bool WidgetInterface::isInitialized() const { return designing_; }
void WidgetInterface::initialize(QDesignerFormEditorInterface* core) {
  if (designing_ || core == nullptr) return;
  designing_ = true;
  // One colour task menu for all the library's widgets, registered with the first.
  QExtensionManager* extensions = core->extensionManager();
  if (extensions != nullptr && extensions->findChild<ColorTaskMenuFactory*>() == nullptr) {
    extensions->registerExtensions(new ColorTaskMenuFactory(extensions), Q_TYPEID(QDesignerTaskMenuExtension));
  }
}

QWidget* WidgetInterface::createWidget(QWidget* parent) { return entry_.create(parent, designing_); }

WidgetCollection::WidgetCollection(QObject* parent) : QObject(parent) {
  for (const WidgetEntry& entry : kWidgets) widgets_.append(new WidgetInterface(entry, this));
}

QList<QDesignerCustomWidgetInterface*> WidgetCollection::customWidgets() const { return widgets_; }

}  // namespace LumoColorCombo::designer
