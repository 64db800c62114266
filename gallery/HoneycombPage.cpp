#include "HoneycombPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "EventLog.h"
#include "GalleryWindow.h"
#include <LumoColorCombo/ColorHexagon.h>

using LumoColorCombo::ColorHexagon;
using LumoColorCombo::OLE_COLOR;

HoneycombPage::HoneycombPage(GalleryWindow& gallery)
    : QWidget(&gallery), gallery_(gallery), hexagon_(new ColorHexagon(this)), state_(new QLabel(this)) {
  hexagon_->setObjectName(QStringLiteral("ColorHexagon1"));
  watch();

  auto* automatic = new QPushButton(tr("Set IsAutomatic"), this);
  auto* more = new QPushButton(tr("More Colors..."), this);
  connect(automatic, &QPushButton::clicked, this, [this] {
    hexagon_->setIsAutomatic(true);
    showState();
  });
  connect(more, &QPushButton::clicked, this, &HoneycombPage::runDialog);
  auto* hint = new QLabel(tr("Click a cell, or move with the arrow keys, to choose. \"More Colors...\" opens the "
                             "dialog that hosts this honeycomb; what its Ok commits comes back here."),
                          this);
  hint->setWordWrap(true);

  auto* frame = new QGroupBox(tr("ColorHexagon"), this);
  auto* row = new QHBoxLayout(frame);
  row->addWidget(hexagon_, 0, Qt::AlignTop);
  auto* side = new QVBoxLayout;
  side->addWidget(state_);
  side->addWidget(automatic);
  side->addWidget(more);
  side->addWidget(hint);
  side->addStretch();
  row->addLayout(side);

  auto* layout = new QHBoxLayout(this);
  layout->addWidget(frame, 0, Qt::AlignTop);
  layout->addStretch();
  frame->setMaximumWidth(560);
  showState();
}

void HoneycombPage::runDialog() {
  const QVariantList result = gallery_.runMoreColors(hexagon_->objectName(), hexagon_->Color(), hexagon_->IsAutomatic());
  if (!result.value(0).toBool()) return;  // committed: the honeycomb takes the dialog's choice
  if (result.value(2).toBool()) {
    hexagon_->setIsAutomatic(true);
  } else {
    hexagon_->setColor(result.value(1).toInt());
  }
  showState();
}

void HoneycombPage::watch() {
  EventLog* log = gallery_.log();
  const QString name = hexagon_->objectName();
  const auto text = &GalleryWindow::rgbText;
  connect(hexagon_, &ColorHexagon::ColorChanged, this,
          [this, log, name, text](OLE_COLOR color, const QString& colorName, const QString& hex) {
            log->add(name, QStringLiteral("ColorChanged(%1, \"%2\", \"%3\")").arg(text(color), colorName, hex));
            showState();
          });
  connect(hexagon_, &ColorHexagon::IsAutomaticChanged, this, [this, log, name](bool value) {
    log->add(name, QStringLiteral("IsAutomaticChanged(%1)").arg(value));
    showState();
  });
  connect(hexagon_, &ColorHexagon::ColorClick, this,
          [log, name, text](OLE_COLOR color, const QString& colorName, qint16 button, qint16 shift, qint32 x, qint32 y) {
            log->add(name, QStringLiteral("ColorClick(%1, \"%2\", button %3, shift %4, %5, %6)")
                               .arg(text(color), colorName)
                               .arg(button)
                               .arg(shift)
                               .arg(x)
                               .arg(y));
          });
  connect(hexagon_, &ColorHexagon::ColorDblClick, this, [log, name, text](OLE_COLOR color, const QString& colorName) {
    log->add(name, QStringLiteral("ColorDblClick(%1, \"%2\")").arg(text(color), colorName));
  });
  connect(hexagon_, &ColorHexagon::ColorOver, this, [log, name, text](OLE_COLOR color, const QString& colorName) {
    log->add(name, QStringLiteral("ColorOver(%1, \"%2\")").arg(text(color), colorName));
  });
}

void HoneycombPage::showState() {
  state_->setText(hexagon_->IsAutomatic() ? tr("Color: Automatic")
                                          : tr("Color: %1").arg(GalleryWindow::rgbText(hexagon_->Color())));
}
