#include "ComboPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaEnum>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "ComboPropertyEditor.h"
#include "EventLog.h"
#include <LumoColorCombo/ColorCombo.h>
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo;

namespace {

// Colours in the log read red first, the way people write them.
QString ColourText(OLE_COLOR color) {
  if (color < 0) return QStringLiteral("system colour %1").arg(color & 0xFFFFFF);
  return QStringLiteral("#%1%2%3")
      .arg(color & 0xFF, 2, 16, QLatin1Char('0'))
      .arg((color >> 8) & 0xFF, 2, 16, QLatin1Char('0'))
      .arg((color >> 16) & 0xFF, 2, 16, QLatin1Char('0'))
      .toUpper();
}

QString Flag(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }

template <class Enum>
QString KeyOf(Enum value) {
  return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

void Settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

// The library's drop-down window while it is open and drawn.
QWidget* OpenDropdown() {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->objectName() == QLatin1String("frmDropdown") && top->isVisible() && top->windowHandle() &&
        top->windowHandle()->isExposed()) {
      return top;
    }
  }
  return nullptr;
}

void SendKey(QWidget* to, Qt::Key key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(to, &press);
}

}  // namespace

ComboPage::ComboPage(EventLog* log, QWidget* parent) : QWidget(parent), log_(log) {
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(buildCombos(), 1);
  layout->addWidget(buildSettings());
  // The combo the user works with is the one the editor shows.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    for (ColorCombo* combo : combos_) {
      if (now != nullptr && (combo == now || combo->isAncestorOf(now))) edit(combo);
    }
  });
  edit(combos_.first());
}

QWidget* ComboPage::buildCombos() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* styles = new QGroupBox(tr("Styles"), page);
  auto* styleGrid = new QGridLayout(styles);
  const CCStyleConstants allStyles[] = {cscDropDown, cscCombobox, cscButton, cscButtonNoText};
  for (const CCStyleConstants style : allStyles) {
    ColorCombo* combo = addCombo(styleGrid, styleGrid->rowCount(), QStringLiteral("ColorCombo%1").arg(style + 1),
                                 KeyOf(style));
    combo->setStyle(style);
  }
  combos_.at(1)->setIsAutomatic(false);
  combos_.at(1)->setColor(0x3399FF);  // FF9933 red first
  combos_.at(2)->setCaption(tr("&Text colour"));
  combos_.at(3)->setPickStyle(cpsPalette40);

  auto* effects = new QGroupBox(tr("Opening effects"), page);
  auto* effectGrid = new QGridLayout(effects);
  const OpenEffectConstants allEffects[] = {oecNone, oecSlide, oecUnfold};
  const ComboPickStyles palettes[] = {cpsStandardWithBW, cpsPalette48, cpsGreyScale16};
  for (int i = 0; i < 3; ++i) {
    ColorCombo* combo = addCombo(effectGrid, i, QStringLiteral("ColorCombo%1").arg(5 + i), KeyOf(allEffects[i]));
    combo->setOpenEffect(allEffects[i]);
    combo->setPickStyle(palettes[i]);
  }

  auto* hint = new QLabel(tr("Click a combo, or press Down, Up, Left, Right or F4 on it (Alt+T opens the "
                             "button-style one), to drop its palette. Moving over the palette previews the "
                             "colour in the field; a click picks it, Escape, F4 or a click elsewhere puts "
                             "the old colour back. The log shows every Before/After event."),
                          page);
  hint->setWordWrap(true);
  column->addWidget(styles);
  column->addWidget(effects);
  column->addWidget(hint);
  column->addStretch();
  return page;
}

ColorCombo* ComboPage::addCombo(QGridLayout* grid, int row, const QString& name, const QString& what) {
  auto* combo = new ColorCombo(grid->parentWidget());
  combo->setObjectName(name);
  combo->setMinimumWidth(180);
  grid->addWidget(new QLabel(what, grid->parentWidget()), row, 0);
  grid->addWidget(combo, row, 1);
  grid->setColumnStretch(2, 1);
  combos_.append(combo);
  watch(combo);
  return combo;
}

QWidget* ComboPage::buildSettings() {
  auto* settings = new QGroupBox(tr("Properties"), this);
  chooser_ = new QComboBox(settings);
  for (ColorCombo* combo : combos_) chooser_->addItem(combo->objectName());
  connect(chooser_, &QComboBox::activated, this, [this](int index) { edit(combos_.at(index)); });
  editor_ = new ComboPropertyEditor(settings);
  cancelAll_ = new QCheckBox(tr("Cancel every Before event"), settings);
  cancelAll_->setToolTip(tr("Sets Cancel in BeforeDropDown, BeforeColorChanged and BeforeIsAutomaticChanged"));
  auto* column = new QVBoxLayout(settings);
  column->addWidget(chooser_);
  column->addWidget(editor_);
  column->addWidget(cancelAll_);
  column->addStretch();
  settings->setMaximumWidth(420);
  return settings;
}

void ComboPage::setCancelEverything(bool cancel) { cancelAll_->setChecked(cancel); }

void ComboPage::edit(ColorCombo* combo) {
  if (editor_ == nullptr || editor_->target() == combo) return;
  chooser_->setCurrentIndex(int(combos_.indexOf(combo)));
  editor_->setTarget(combo);
}

void ComboPage::watch(ColorCombo* combo) {
  const QString name = combo->objectName();
  const auto before = [this, name](const QString& event, bool& cancel) {
    cancel = cancelAll_->isChecked();
    log_->add(name, QStringLiteral("%1Cancel=%2)").arg(event, Flag(cancel)));
  };
  connect(combo, &ColorCombo::BeforeColorChanged, this, [before](OLE_COLOR color, bool& cancel) {
    before(QStringLiteral("BeforeColorChanged(%1, ").arg(ColourText(color)), cancel);
  });
  connect(combo, &ColorCombo::AfterColorChanged, this,
          [this, name](OLE_COLOR color) { log_->add(name, QStringLiteral("AfterColorChanged(%1)").arg(ColourText(color))); });
  connect(combo, &ColorCombo::BeforeIsAutomaticChanged, this, [before](bool value, bool& cancel) {
    before(QStringLiteral("BeforeIsAutomaticChanged(%1, ").arg(Flag(value)), cancel);
  });
  connect(combo, &ColorCombo::AfterIsAutomaticChanged, this,
          [this, name](bool value) { log_->add(name, QStringLiteral("AfterIsAutomaticChanged(%1)").arg(Flag(value))); });
  connect(combo, &ColorCombo::BeforeDropDown, this, [before](bool& cancel) { before(QStringLiteral("BeforeDropDown("), cancel); });
  connect(combo, &ColorCombo::AfterDropUp, this, [this, name] {
    log_->add(name, QStringLiteral("AfterDropUp"));
    if (editor_ != nullptr) editor_->reload();
  });
  connect(combo, &ColorCombo::DblClick, this, [this, name] { log_->add(name, QStringLiteral("DblClick")); });
}

int ComboPage::writeScreenshots(const Saver& save) {
  int saved = 0;
  for (ColorCombo* combo : combos_.mid(0, 4)) saved += save(combo->grab(), QStringLiteral("combo-") + KeyOf(combo->Style()));
  ColorCombo* first = combos_.first();
  window()->activateWindow();
  first->setFocus();
  Settle();
  saved += save(first->grab(), QStringLiteral("combo-focused"));
  saved += saveOpenDropdown(combos_.at(1), save);
  return saved;
}

// The drop-down is modal: it is photographed with what its combo's window shows around
// it and closed with Escape, from inside its own loop.
bool ComboPage::saveOpenDropdown(ColorCombo* combo, const Saver& save) {
  bool saved = false;
  QTimer poll;
  connect(&poll, &QTimer::timeout, this, [&] {
    QWidget* dropdown = OpenDropdown();
    if (dropdown == nullptr) return;
    poll.stop();
    Settle();
    QWidget* host = combo->window();
    const QRect field(combo->mapToGlobal(QPoint(0, 0)), combo->size());
    const QRect area = field.united(dropdown->frameGeometry()).adjusted(-16, -16, 16, 16);
    QPixmap picture(area.size());
    picture.fill(host->palette().color(QPalette::Window));
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, host->grab(area.translated(-host->mapToGlobal(QPoint(0, 0)))));
    painter.drawPixmap(dropdown->frameGeometry().topLeft() - area.topLeft(), dropdown->grab());
    painter.end();
    saved = save(picture, QStringLiteral("combo-dropdown"));
    if (QWidget* grid = dropdown->findChild<QWidget*>(QStringLiteral("ColorBox1.picScreen"))) {
      SendKey(grid, Qt::Key_Escape);
    } else {
      dropdown->close();
    }
  });
  poll.start(0);
  combo->setFocus();
  SendKey(combo->surface(), Qt::Key_F4);  // returns once the drop-down has closed
  return saved;
}
