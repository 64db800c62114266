#include "ScreenshotWriter.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPixmap>
#include <QTabWidget>
#include <QTimer>
#include <QWidget>

#include "ComboPage.h"
#include "GalleryWindow.h"
#include "HoneycombPage.h"
#include "PalettesPage.h"
#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/ColorSample.h>

ScreenshotWriter::ScreenshotWriter(GalleryWindow& window, const QString& folder)
    : window_(window), folder_(folder) {
  folder_.mkpath(QStringLiteral("."));
}

int ScreenshotWriter::writeAll() {
  window_.show();
  settle();
  writePages(QString());
  writeCombos();
  writePalettes();
  writeHoneycomb();
  writeDialog();
  writeSample();
  writeAboutBox();
  window_.setDarkTheme(true);
  settle();
  writePages(QStringLiteral("-dark"));
  window_.setDarkTheme(false);
  return written_;
}

void ScreenshotWriter::settle() const {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

bool ScreenshotWriter::save(const QPixmap& picture, const QString& name) {
  const bool ok = picture.save(folder_.filePath(name + QStringLiteral(".png")));
  if (ok) ++written_;
  return ok;
}

void ScreenshotWriter::writePages(const QString& suffix) {
  QTabWidget* tabs = window_.tabs();
  for (int i = 0; i < tabs->count(); ++i) {
    tabs->setCurrentIndex(i);
    settle();
    save(window_.grab(), QStringLiteral("gallery-%1%2").arg(tabs->tabText(i).toLower(), suffix));
  }
  tabs->setCurrentIndex(0);
}

void ScreenshotWriter::showTabOf(const QWidget* widget) {
  QTabWidget* tabs = window_.tabs();
  for (int i = 0; i < tabs->count(); ++i) {
    if (widget != nullptr && tabs->widget(i)->isAncestorOf(widget)) tabs->setCurrentIndex(i);
  }
  settle();
}

void ScreenshotWriter::writeCombos() {
  auto* page = window_.findChild<ComboPage*>();
  if (page == nullptr) return;
  window_.tabs()->setCurrentWidget(page);
  settle();
  // save() counts what it writes.
  page->writeScreenshots([this](const QPixmap& picture, const QString& name) { return save(picture, name); });
}

void ScreenshotWriter::writePalettes() {
  auto* page = window_.findChild<PalettesPage*>();
  if (page == nullptr) return;
  showTabOf(page->grid());
  page->forEachPalette([this](LumoColorCombo::ColorBox& grid, const QString& name) {
    settle();
    save(grid.grab(), QStringLiteral("palette-") + name);
  });
}

void ScreenshotWriter::writeHoneycomb() {
  auto* page = window_.findChild<HoneycombPage*>();
  if (page == nullptr) return;
  LumoColorCombo::ColorHexagon* hexagon = page->hexagon();
  showTabOf(hexagon);
  hexagon->setIsAutomatic(false);
  hexagon->setColor(0x3399FF);  // FF9933 red first: a cell of the honeycomb, so it is marked
  settle();
  save(hexagon->grab(), QStringLiteral("honeycomb"));
  window_.tabs()->setCurrentIndex(0);
}

void ScreenshotWriter::writeDialog() {
  // The dialog is modal: photograph and close it from inside its own event loop.
  QTimer::singleShot(0, [this] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) {
      for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top != &window_ && top->windowTitle() == QStringLiteral("More Colors")) dialog = top;
      }
    }
    if (dialog == nullptr) return;
    settle();
    save(dialog->grab(), QStringLiteral("more-colors-dialog"));
    dialog->close();
  });
  window_.runMoreColors(QStringLiteral("Screenshots"), 0x3399FF, false);
}

void ScreenshotWriter::writeSample() {
  auto* sample = window_.findChild<LumoColorCombo::ColorSample*>();
  if (sample == nullptr) return;
  QTabWidget* tabs = window_.tabs();
  for (int i = 0; i < tabs->count(); ++i) {
    if (tabs->widget(i)->isAncestorOf(sample)) tabs->setCurrentIndex(i);
  }
  settle();
  save(sample->grab(), QStringLiteral("sample"));
  tabs->setCurrentIndex(0);
}

void ScreenshotWriter::writeAboutBox() {
  auto* sample = window_.findChild<LumoColorCombo::ColorSample*>();
  if (sample == nullptr) return;
  // Modal, like the More Colors dialog: photographed and closed from its own loop.
  QTimer::singleShot(0, [this] {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    settle();
    save(box->grab(), QStringLiteral("about-box"));
    box->close();
  });
  sample->AboutBox();
}
