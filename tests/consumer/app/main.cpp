// Uses the installed package as an application does: every widget placed from code,
// the form compiled by uic, and the same form built by QUiLoader through the installed
// Designer plugin, whose widgets must be this application's classes. Prints each
// failed check; the exit status is 1 if any failed.
#include <cstdio>
#include <memory>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPluginLoader>
#include <QUiLoader>
#include <QVBoxLayout>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/ColorSample.h>
#include <LumoColorCombo/MoreColorsDialog.h>
#include <LumoColorCombo/Runtime.h>

#include "ui_ConsumerForm.h"

namespace {

int failures = 0;

void Check(bool ok, const char* what) {
  if (ok) return;
  ++failures;
  std::fprintf(stderr, "FAILED: %s\n", what);
}

// The form's saved values, read through the typed getters.
template <class Form>
void CheckForm(const Form& form, const char* how) {
  std::fprintf(stderr, "checking the form %s\n", how);
  Check(form.colorCombo != nullptr && form.colorCombo->Color() == 65280, "ColorCombo and its Color");
  Check(form.colorBox != nullptr && form.colorBox->Color() == 255 &&
            form.colorBox->PickStyle() == LumoColorCombo::cpsPalette40,
        "ColorBox and its Color and PickStyle");
  Check(form.colorHexagon != nullptr && form.colorHexagon->Color() == 16711680, "ColorHexagon and its Color");
  Check(form.colorSample != nullptr && form.colorSample->Text() == QStringLiteral("Sample text"),
        "ColorSample and its Text");
}

// The widgets QUiLoader made, found by their classes (findChild casts with qobject_cast).
struct LoadedForm {
  explicit LoadedForm(QWidget& form)
      : colorCombo(form.findChild<LumoColorCombo::ColorCombo*>(QStringLiteral("colorCombo"))),
        colorBox(form.findChild<LumoColorCombo::ColorBox*>(QStringLiteral("colorBox"))),
        colorHexagon(form.findChild<LumoColorCombo::ColorHexagon*>(QStringLiteral("colorHexagon"))),
        colorSample(form.findChild<LumoColorCombo::ColorSample*>(QStringLiteral("colorSample"))) {}
  LumoColorCombo::ColorCombo* colorCombo;
  LumoColorCombo::ColorBox* colorBox;
  LumoColorCombo::ColorHexagon* colorHexagon;
  LumoColorCombo::ColorSample* colorSample;
};

// Designer writes each widget's include file into the forms it saves; uic then
// includes it, so it must name an installed header.
void CheckPluginIncludeFiles() {
  const QDir plugins(QStringLiteral(DESIGNER_PLUGIN_DIR));
  int widgets = 0;
  for (const QString& file : plugins.entryList(QDir::Files)) {
    QPluginLoader plugin(plugins.filePath(file));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    if (collection == nullptr) continue;
    for (QDesignerCustomWidgetInterface* widget : collection->customWidgets()) {
      ++widgets;
      QString header = widget->includeFile();
      header.remove(QLatin1Char('<')).remove(QLatin1Char('>'));
      Check(QFile::exists(QStringLiteral(INSTALLED_INCLUDE_DIR "/") + header), qPrintable(widget->includeFile()));
    }
  }
  Check(widgets == 4, "the plugin offers the four widgets");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);

  QWidget window;
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(new LumoColorCombo::ColorCombo(&window));
  layout->addWidget(new LumoColorCombo::ColorBox(&window));
  layout->addWidget(new LumoColorCombo::ColorHexagon(&window));
  layout->addWidget(new LumoColorCombo::ColorSample(&window));
  LumoColorCombo::MoreColorsDialog dialog(&window);
  // A part of the application kept apart, on a runtime of its own.
  LumoColorCombo::Runtime own;
  auto* apart = new LumoColorCombo::ColorBox(own, &window);
  apart->setColor(255);
  layout->addWidget(apart);
  LumoColorCombo::MoreColorsDialog apartDialog(own, &window);
  window.show();
  QApplication::processEvents();
  Check(window.findChildren<QWidget*>().size() > 5, "the widgets placed from code");
  Check(apart->Color() == 255 && apart->isVisible(), "a grid on a runtime of its own");

  QWidget compiled;
  Ui::ConsumerForm ui;
  ui.setupUi(&compiled);
  CheckForm(ui, "compiled by uic");

  QUiLoader loader;
  loader.addPluginPath(QStringLiteral(DESIGNER_PLUGIN_DIR));
  QFile file(QStringLiteral(CONSUMER_FORM));
  Check(file.open(QIODevice::ReadOnly), "the form file opens");
  const std::unique_ptr<QWidget> loaded(loader.load(&file));
  Check(loaded != nullptr, qPrintable(loader.errorString()));
  if (loaded) CheckForm(LoadedForm(*loaded), "loaded by QUiLoader");

  CheckPluginIncludeFiles();
  std::fprintf(stderr, "%s\n", failures == 0 ? "OK" : "FAILED");
  return failures == 0 ? 0 : 1;
}
