#include "GalleryWindow.h"

#include <QApplication>
#include <QDockWidget>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "ComboPage.h"
#include "EventLog.h"
#include "PaletteSettings.h"
#include "SamplePage.h"
#include "qt/ColorBox.h"
#include "qt/ColorHexagon.h"
#include "qt/MoreColorsDialog.h"

using LumoColorCombo::OLE_COLOR;

namespace {

// Colours in the log read red first, the way people write them.
QString RgbText(OLE_COLOR color) {
  if (color < 0) return QStringLiteral("system colour %1").arg(color & 0xFFFFFF);
  const int r = color & 0xFF, g = (color >> 8) & 0xFF, b = (color >> 16) & 0xFF;
  return QStringLiteral("#%1%2%3").arg(r, 2, 16, QChar('0')).arg(g, 2, 16, QChar('0')).arg(b, 2, 16, QChar('0')).toUpper();
}

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
  tabs_->addTab(buildPalettesPage(), tr("Palettes"));
  tabs_->addTab(buildHoneycombPage(), tr("Honeycomb"));
  tabs_->addTab(new SamplePage(log_, this), tr("Sample"));
  setCentralWidget(tabs_);
  buildLogDock();
  buildToolBar();
  resize(1180, 860);
}

QWidget* GalleryWindow::buildPalettesPage() {
  auto* page = new QWidget;
  auto* layout = new QHBoxLayout(page);
  auto* settings = new PaletteSettings(page);
  auto* settingsBox = new QGroupBox(tr("Properties of every grid"), page);
  (new QVBoxLayout(settingsBox))->addWidget(settings);
  settingsBox->setMaximumWidth(300);

  auto* grid = new QWidget;
  auto* gridLayout = new QGridLayout(grid);
  const QMetaEnum styles = QMetaEnum::fromType<LumoColorCombo::ComboPickStyles>();
  // Small palettes first, so the tall 256-cell grids share rows with each other.
  using namespace LumoColorCombo;
  const ComboPickStyles order[] = {cpsStandard,        cpsGreyScale16,      cpsPaletteRed16,    cpsPaletteGreen16,
                                   cpsPaletteBlue16,   cpsStandardWithBW,   cpsPalette40,       cpsPalette48,
                                   cpsPalette48WithBW, cpsGreyScale256,     cpsPalette256,      cpsPalette256WithBW,
                                   cpsPaletteRed256,   cpsPaletteGreen256,  cpsPaletteBlue256};
  for (int i = 0; i < styles.keyCount(); ++i) {
    const QString name = QString::fromLatin1(styles.valueToKey(order[i]));
    auto* frame = new QGroupBox(name, grid);
    auto* box = new LumoColorCombo::ColorBox(frame);
    box->setObjectName(name);
    box->setPickStyle(order[i]);
    (new QVBoxLayout(frame))->addWidget(box, 0, Qt::AlignCenter);
    // Three small grids a row, then two of the 16-column grids, which are twice as wide.
    const int row = i < 9 ? i / 3 : 3 + (i - 9) / 2;
    gridLayout->addWidget(frame, row, i < 9 ? i % 3 : (i - 9) % 2, Qt::AlignTop);
    boxes_.append(box);
    settings->addTarget(box);
    watch(box, name);
  }
  auto* scroll = new QScrollArea(page);
  scroll->setWidget(grid);
  scroll->setWidgetResizable(true);

  auto* hint = new QLabel(tr("A grid takes the mouse while the pointer moves over it, so that a press "
                             "outside it cancels (UserCancel); that press goes to the grid. Resting "
                             "on a grid for half a second gives the mouse back."),
                          page);
  hint->setWordWrap(true);
  hint->setMaximumWidth(300);

  auto* left = new QVBoxLayout;
  left->addWidget(settingsBox);
  left->addWidget(hint);
  left->addStretch();
  layout->addLayout(left);
  layout->addWidget(scroll, 1);
  return page;
}

QWidget* GalleryWindow::buildHoneycombPage() {
  auto* page = new QWidget;
  auto* layout = new QHBoxLayout(page);
  hexagon_ = new LumoColorCombo::ColorHexagon(page);
  hexagon_->setObjectName(QStringLiteral("ColorHexagon1"));
  watch(hexagon_);

  auto* side = new QVBoxLayout;
  hexagonState_ = new QLabel(page);
  auto* automatic = new QPushButton(tr("Set IsAutomatic"), page);
  auto* more = new QPushButton(tr("More Colors..."), page);
  connect(automatic, &QPushButton::clicked, this, [this] {
    hexagon_->setIsAutomatic(true);
    showHexagonState();
  });
  connect(more, &QPushButton::clicked, this,
          [this] { runMoreColors(QStringLiteral("Honeycomb page"), hexagon_->Color(), hexagon_->IsAutomatic()); });
  side->addWidget(hexagonState_);
  side->addWidget(automatic);
  side->addWidget(more);
  side->addStretch();

  layout->addWidget(hexagon_, 0, Qt::AlignTop);
  layout->addLayout(side);
  layout->addStretch();
  showHexagonState();
  return page;
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

void GalleryWindow::watch(LumoColorCombo::ColorBox* box, const QString& name) {
  using LumoColorCombo::ColorBox;
  connect(box, &ColorBox::OverColor, this, [this, name](OLE_COLOR color, bool overAutomatic) {
    log_->add(name, overAutomatic ? QStringLiteral("OverColor(automatic)") : QStringLiteral("OverColor(%1)").arg(RgbText(color)));
  });
  connect(box, &ColorBox::Click, this, [this, name](OLE_COLOR& color, const QString& colorName, bool& isAutomatic) {
    log_->add(name, QStringLiteral("Click(%1, \"%2\", IsAutomatic=%3)").arg(RgbText(color), colorName).arg(isAutomatic));
  });
  connect(box, &ColorBox::MoreColorClick, this, [this, box, name] {
    log_->add(name, QStringLiteral("MoreColorClick"));
    const QVariantList result = runMoreColors(name, box->Color(), box->IsAutomatic());
    if (result.value(0).toBool()) {  // committed: the grid takes the dialog's choice
      box->setIsAutomatic(result.value(2).toBool());
      box->setColor(result.value(1).toInt());
    }
  });
  connect(box, &ColorBox::UserCancel, this, [this, name] { log_->add(name, QStringLiteral("UserCancel")); });
}

void GalleryWindow::watch(LumoColorCombo::ColorHexagon* hexagon) {
  using LumoColorCombo::ColorHexagon;
  const QString name = hexagon->objectName();
  connect(hexagon, &ColorHexagon::ColorChanged, this, [this, name](OLE_COLOR color, const QString& colorName, const QString& hex) {
    log_->add(name, QStringLiteral("ColorChanged(%1, \"%2\", \"%3\")").arg(RgbText(color), colorName, hex));
    showHexagonState();
  });
  connect(hexagon, &ColorHexagon::IsAutomaticChanged, this, [this, name](bool value) {
    log_->add(name, QStringLiteral("IsAutomaticChanged(%1)").arg(value));
    showHexagonState();
  });
  connect(hexagon, &ColorHexagon::ColorClick, this,
          [this, name](OLE_COLOR color, const QString& colorName, qint16 button, qint16 shift, qint32 x, qint32 y) {
            log_->add(name, QStringLiteral("ColorClick(%1, \"%2\", button %3, shift %4, %5, %6)")
                                .arg(RgbText(color), colorName).arg(button).arg(shift).arg(x).arg(y));
          });
  connect(hexagon, &ColorHexagon::ColorDblClick, this, [this, name](OLE_COLOR color, const QString& colorName) {
    log_->add(name, QStringLiteral("ColorDblClick(%1, \"%2\")").arg(RgbText(color), colorName));
  });
  connect(hexagon, &ColorHexagon::ColorOver, this, [this, name](OLE_COLOR color, const QString& colorName) {
    log_->add(name, QStringLiteral("ColorOver(%1, \"%2\")").arg(RgbText(color), colorName));
  });
}

void GalleryWindow::showHexagonState() {
  if (hexagonState_ == nullptr || hexagon_ == nullptr) return;
  hexagonState_->setText(tr("Color: %1\nIsAutomatic: %2").arg(RgbText(hexagon_->Color())).arg(hexagon_->IsAutomatic()));
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
