#include "PalettesPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMetaEnum>
#include <QPainter>
#include <QVBoxLayout>

#include "EventLog.h"
#include "GalleryWindow.h"
#include "PaletteSettings.h"
#include <LumoColorCombo/ColorBox.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::ComboPickStyles;
using LumoColorCombo::OLE_COLOR;

namespace {

QMetaEnum Styles() { return QMetaEnum::fromType<ComboPickStyles>(); }

constexpr QSize kPictureSize(96, 40);

// A palette's picture fitted into one size, so that the names line up.
QIcon Picture(const QImage& drawn) {
  QPixmap picture(kPictureSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QSize fitted = drawn.size().scaled(kPictureSize, Qt::KeepAspectRatio);
  painter.drawImage(QRect(QPoint((kPictureSize.width() - fitted.width()) / 2, 0), fitted), drawn);
  return QIcon(picture);
}

}  // namespace

PalettesPage::PalettesPage(GalleryWindow& gallery) : QWidget(&gallery), gallery_(gallery) {
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(buildChooser());
  layout->addWidget(buildGrid(), 1);
  layout->addWidget(buildSide());
  connect(chooser_, &QListWidget::currentRowChanged, this, &PalettesPage::choose);
  chooser_->setCurrentRow(0);
}

QWidget* PalettesPage::buildChooser() {
  auto* frame = new QGroupBox(tr("Palette"), this);
  chooser_ = new QListWidget(frame);
  chooser_->setObjectName(QStringLiteral("paletteChooser"));
  chooser_->setAccessibleName(tr("Palette"));
  chooser_->setIconSize(kPictureSize);
  chooser_->setSpacing(2);
  for (int i = 0; i < Styles().keyCount(); ++i) {
    auto* item = new QListWidgetItem(QString::fromLatin1(Styles().key(i)), chooser_);
    item->setData(Qt::UserRole, Styles().value(i));
  }
  drawPictures();
  (new QVBoxLayout(frame))->addWidget(chooser_);
  frame->setFixedWidth(300);
  return frame;
}

// Each palette drawn by a grid that is never shown (so it never takes the mouse), in
// the page's colours: as the page's child it inherits them.
void PalettesPage::drawPictures() {
  ColorBox painter(this);
  painter.setAllowAutomatic(false);
  painter.setAllowMoreColors(false);
  for (int row = 0; row < chooser_->count(); ++row) {
    QListWidgetItem* item = chooser_->item(row);
    painter.setPickStyle(static_cast<ComboPickStyles>(item->data(Qt::UserRole).toInt()));
    item->setIcon(Picture(painter.surface()->image()));
  }
}

void PalettesPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && chooser_ != nullptr) drawPictures();
}

QWidget* PalettesPage::buildGrid() {
  gridFrame_ = new QGroupBox(this);
  grid_ = new ColorBox(gridFrame_);
  choice_ = new QLabel(gridFrame_);
  choice_->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(gridFrame_);
  layout->addStretch();
  layout->addWidget(grid_, 0, Qt::AlignCenter);
  layout->addSpacing(12);
  layout->addWidget(choice_);
  layout->addStretch();
  watchGrid();
  return gridFrame_;
}

QWidget* PalettesPage::buildSide() {
  auto* side = new QWidget(this);
  auto* settingsBox = new QGroupBox(tr("Properties"), side);
  auto* settings = new PaletteSettings(settingsBox);
  settings->addTarget(grid_);
  (new QVBoxLayout(settingsBox))->addWidget(settings);
  auto* hint = new QLabel(tr("Choose a palette on the left and pick in the grid. Like the combo's drop-down "
                             "that it is made for, the grid takes the mouse when it is shown and while the "
                             "pointer moves over it, so a press outside it cancels (UserCancel) and goes to "
                             "the grid; resting on it for half a second gives the mouse back. The Combo page "
                             "shows the grids where they belong, under their combos."),
                          side);
  hint->setWordWrap(true);
  auto* layout = new QVBoxLayout(side);
  layout->addWidget(settingsBox);
  layout->addWidget(hint);
  layout->addStretch();
  side->setFixedWidth(300);
  return side;
}

QString PalettesPage::paletteName() const {
  const QListWidgetItem* item = chooser_->currentItem();
  return item ? item->text() : QString();
}

void PalettesPage::choose(int row) {
  const QListWidgetItem* item = chooser_->item(row);
  if (item == nullptr) return;
  grid_->setObjectName(item->text());
  grid_->setPickStyle(static_cast<ComboPickStyles>(item->data(Qt::UserRole).toInt()));
  gridFrame_->setTitle(item->text());
  showChoice();
}

void PalettesPage::forEachPalette(const std::function<void(ColorBox&, const QString&)>& visit) {
  const int chosen = chooser_->currentRow();
  for (int row = 0; row < chooser_->count(); ++row) {
    chooser_->setCurrentRow(row);
    visit(*grid_, paletteName());
  }
  chooser_->setCurrentRow(chosen);
}

void PalettesPage::watchGrid() {
  EventLog* log = gallery_.log();
  connect(grid_, &ColorBox::OverColor, this, [this, log](OLE_COLOR color, bool overAutomatic) {
    log->add(paletteName(), overAutomatic ? QStringLiteral("OverColor(automatic)")
                                          : QStringLiteral("OverColor(%1)").arg(GalleryWindow::rgbText(color)));
  });
  connect(grid_, &ColorBox::Click, this, [this, log](OLE_COLOR& color, const QString& name, bool& isAutomatic) {
    log->add(paletteName(), QStringLiteral("Click(%1, \"%2\", IsAutomatic=%3)")
                                .arg(GalleryWindow::rgbText(color), name)
                                .arg(isAutomatic));
    showChoice();
  });
  connect(grid_, &ColorBox::MoreColorClick, this, [this, log] {
    log->add(paletteName(), QStringLiteral("MoreColorClick"));
    const QVariantList result = gallery_.runMoreColors(paletteName(), grid_->Color(), grid_->IsAutomatic());
    if (result.value(0).toBool()) {  // committed: the grid takes the dialog's choice
      grid_->setIsAutomatic(result.value(2).toBool());
      grid_->setColor(result.value(1).toInt());
      showChoice();
    }
  });
  connect(grid_, &ColorBox::UserCancel, this, [this, log] { log->add(paletteName(), QStringLiteral("UserCancel")); });
}

void PalettesPage::showChoice() {
  const QString name = grid_->ColorName().isEmpty() ? QString() : QStringLiteral("  \"%1\"").arg(grid_->ColorName());
  choice_->setText(grid_->IsAutomatic() ? tr("Chosen: Automatic")
                                        : tr("Chosen: %1%2").arg(GalleryWindow::rgbText(grid_->Color()), name));
}
