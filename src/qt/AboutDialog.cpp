#include "qt/AboutDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/DialogOwner.h"
#include "qt/SystemInfo.h"
#include "qt/Version.h"

namespace LumoColorCombo::host {
namespace {

// The box's emblem: a small palette of swatches, drawn rather than shipped as a file.
QPixmap Emblem() {
  constexpr int kSwatch = 14;
  constexpr int kGap = 3;
  const QRgb colours[] = {0xC0392B, 0xE67E22, 0xF1C40F, 0x27AE60, 0x16A085, 0x2980B9, 0x8E44AD, 0x34495E, 0xECF0F1};
  QPixmap emblem(3 * kSwatch + 2 * kGap, 3 * kSwatch + 2 * kGap);
  emblem.fill(Qt::transparent);
  QPainter painter(&emblem);
  painter.setPen(QColor(0, 0, 0, 90));
  for (int i = 0; i < 9; ++i) {
    painter.setBrush(QColor(colours[i]));
    painter.drawRect((i % 3) * (kSwatch + kGap), (i / 3) * (kSwatch + kGap), kSwatch - 1, kSwatch - 1);
  }
  return emblem;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("About LumoColorCombo"));

  auto* emblem = new QLabel(this);
  emblem->setPixmap(Emblem());
  emblem->setAlignment(Qt::AlignTop);

  auto* title = new QLabel(tr("<b><big>LumoColorCombo %1</big></b>").arg(version()), this);
  title->setObjectName(QStringLiteral("title"));
  auto* about = new QLabel(tr("Colour-picker controls for Qt 6 Widgets: a colour combo, a palette grid, "
                              "a honeycomb picker and a colour sample.<br>Running on Qt %1.<br><br>"
                              "Questions and bug reports go to the LumoColorCombo maintainers; please add the "
                              "text under System Info to a report.")
                               .arg(QString::fromLatin1(qVersion())),
                           this);
  about->setObjectName(QStringLiteral("about"));
  about->setWordWrap(true);
  about->setTextInteractionFlags(Qt::TextSelectableByMouse);
  status_ = new QLabel(this);
  status_->setObjectName(QStringLiteral("updateStatus"));
  status_->setWordWrap(true);
  status_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  status_->hide();

  auto* text = new QVBoxLayout;
  text->addWidget(title);
  text->addWidget(about);
  text->addWidget(status_);
  auto* top = new QHBoxLayout;
  top->addWidget(emblem, 0, Qt::AlignTop);
  top->addSpacing(12);
  top->addLayout(text, 1);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(buildButtons());
  layout->addWidget(buildSystemInfo());
  layout->setSizeConstraint(QLayout::SetFixedSize);  // shrinks back when the details close
  about->setFixedWidth(340);
}

QLayout* AboutDialog::buildButtons() {
  auto* systemInfo = new QPushButton(tr("System Info..."), this);
  systemInfo->setObjectName(QStringLiteral("systemInfo"));
  systemInfo->setCheckable(true);
  connect(systemInfo, &QPushButton::toggled, this, &AboutDialog::showSystemInfo);
  auto* update = new QPushButton(tr("Check for Updates"), this);
  update->setObjectName(QStringLiteral("checkForUpdates"));
  connect(update, &QPushButton::clicked, this, &AboutDialog::checkForUpdates);
  auto* close = new QPushButton(tr("OK"), this);
  close->setObjectName(QStringLiteral("ok"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(systemInfo);
  buttons->addWidget(update);
  buttons->addStretch();
  buttons->addWidget(close);
  return buttons;
}

QWidget* AboutDialog::buildSystemInfo() {
  infoPanel_ = new QWidget(this);
  info_ = new QPlainTextEdit(infoPanel_);
  info_->setObjectName(QStringLiteral("systemInfoText"));
  info_->setReadOnly(true);
  info_->setMinimumHeight(150);
  auto* copy = new QPushButton(tr("Copy"), infoPanel_);
  copy->setObjectName(QStringLiteral("copy"));
  connect(copy, &QPushButton::clicked, this, &AboutDialog::copySystemInfo);

  auto* layout = new QVBoxLayout(infoPanel_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(info_);
  layout->addWidget(copy, 0, Qt::AlignRight);
  infoPanel_->hide();
  return infoPanel_;
}

void AboutDialog::showSystemInfo(bool shown) {
  // Gathered when asked for, so it names the screens as they are now.
  if (shown) info_->setPlainText(SystemInfo::text(this));
  infoPanel_->setVisible(shown);
}

void AboutDialog::copySystemInfo() { QGuiApplication::clipboard()->setText(info_->toPlainText()); }

void AboutDialog::checkForUpdates() {
  // The browser does the checking: the library opens the page and nothing more.
  const QUrl url = releasesUrl();
  status_->setText(QDesktopServices::openUrl(url)
                       ? tr("The releases page is open in your browser; this is version %1.").arg(version())
                       : tr("No browser could be started. The releases are listed at %1").arg(url.toString()));
  status_->show();
}

void AboutDialog::run(QWidget* owner) {
  QWidget* window = owner ? owner->window() : DialogOwner::window();
  const QPointer<AboutDialog> dialog = new AboutDialog(window);
  dialog->exec();
  delete dialog.data();  // null when the host deleted the window, and the box, meanwhile
}

QString AboutDialog::version() { return QStringLiteral(LUMOCOLORCOMBO_VERSION_STR); }

QUrl AboutDialog::releasesUrl() { return QUrl(QStringLiteral(LUMOCOLORCOMBO_RELEASES_URL)); }

}  // namespace LumoColorCombo::host
