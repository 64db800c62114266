#include "GalleryWindow.h"

#include <QApplication>
#include <QDockWidget>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "ComboPage.h"
#include "EventLog.h"
#include "HoneycombPage.h"
#include "PalettesPage.h"
#include "SamplePage.h"
#include <LumoColorCombo/MoreColorsDialog.h>

using LumoColorCombo::OLE_COLOR;

namespace {

QString ResultText(const QVariantList& result) {
  QStringList slots_;
  for (const QVariant& slot : result) slots_ << (slot.isValid() ? slot.toString() : QStringLiteral("(empty)"));
  return QStringLiteral("PopupResult = [%1]").arg(slots_.join(QStringLiteral(", ")));
}

QPalette DarkPalette() {
  QPalette dark;
  dark.setColor(QPalette::Window, QColor(45, 45, 48));
  dark.setColor(QPalette::WindowText, QColor(230, 230, 230));
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, QColor(230, 230, 230));
  dark.setColor(QPalette::Button, QColor(58, 58, 62));
  dark.setColor(QPalette::ButtonText, QColor(235, 235, 235));
  dark.setColor(QPalette::Light, QColor(95, 95, 100));
  dark.setColor(QPalette::Midlight, QColor(75, 75, 80));
  dark.setColor(QPalette::Mid, QColor(40, 40, 42));
  dark.setColor(QPalette::Dark, QColor(25, 25, 27));
  dark.setColor(QPalette::Shadow, QColor(10, 10, 10));
  dark.setColor(QPalette::Highlight, QColor(38, 110, 200));
  dark.setColor(QPalette::HighlightedText, QColor(255, 255, 255));
  return dark;
}

}  // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QMainWindow(parent), tabs_(new QTabWidget(this)), log_(new EventLog(this)) {
  setWindowTitle(tr("LumoColorCombo Gallery"));
  tabs_->addTab(new ComboPage(log_, this), tr("Combo"));
  tabs_->addTab(new PalettesPage(*this), tr("Palettes"));
  tabs_->addTab(new HoneycombPage(*this), tr("Honeycomb"));
  tabs_->addTab(new SamplePage(log_, this), tr("Sample"));
  setCentralWidget(tabs_);
  buildLogDock();
  buildToolBar();
  resize(1180, 860);
}

void GalleryWindow::buildLogDock() {
  auto* dock = new QDockWidget(tr("Events"), this);
  auto* holder = new QWidget(dock);
  auto* layout = new QVBoxLayout(holder);
  auto* clear = new QPushButton(tr("Clear"), holder);
  connect(clear, &QPushButton::clicked, log_, &QPlainTextEdit::clear);
  layout->addWidget(log_);
  layout->addWidget(clear, 0, Qt::AlignRight);
  dock->setWidget(holder);
  dock->setFeatures(QDockWidget::DockWidgetMovable);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
  resizeDocks({dock}, {170}, Qt::Vertical);
}

void GalleryWindow::buildToolBar() {
  QToolBar* bar = addToolBar(tr("View"));
  QAction* dark = bar->addAction(tr("Dark theme"));
  dark->setCheckable(true);
  connect(dark, &QAction::toggled, this, &GalleryWindow::setDarkTheme);
}

void GalleryWindow::setDarkTheme(bool dark) {
  // The controls resolve their system colours through the palette they inherit.
  setPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
}

QString GalleryWindow::rgbText(OLE_COLOR color) {
  if (color < 0) return QStringLiteral("system colour %1").arg(color & 0xFFFFFF);
  const int r = color & 0xFF, g = (color >> 8) & 0xFF, b = (color >> 16) & 0xFF;
  return QStringLiteral("#%1%2%3").arg(r, 2, 16, QChar('0')).arg(g, 2, 16, QChar('0')).arg(b, 2, 16, QChar('0')).toUpper();
}

QVariantList GalleryWindow::runMoreColors(const QString& source, OLE_COLOR current, bool isAutomatic) {
  LumoColorCombo::MoreColorsDialog dialog;
  dialog.setMoreColorsText(tr("More Colors"));
  dialog.setIsAutomatic(isAutomatic);
  dialog.setColor(current);
  dialog.setCurrentColor(current);
  const QVariantList result = dialog.exec();
  log_->add(source, ResultText(result));
  return result;
}
