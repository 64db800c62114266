#include "PaletteSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "colormodel/Types.h"
#include <LumoColorCombo/ColorBox.h>

namespace {

// Colours are typed red first, as people read them ("FF8000"), and stored the
// controls' way (blue in the high byte).
LumoColorCombo::OLE_COLOR FromRgbText(const QString& text) {
  return lumo::FromRedFirst(text.toUInt(nullptr, 16));
}

}  // namespace

PaletteSettings::PaletteSettings(QWidget* parent)
    : QWidget(parent),
      allowAutomatic_(new QCheckBox(tr("Offer \"Automatic\""), this)),
      allowMoreColors_(new QCheckBox(tr("Offer \"More Colors...\""), this)),
      automaticText_(new QLineEdit(QStringLiteral("Automatic"), this)),
      moreColorsText_(new QLineEdit(QStringLiteral("More Colors..."), this)),
      color_(new QLineEdit(QStringLiteral("003366"), this)),
      autoColor_(new QComboBox(this)) {
  allowAutomatic_->setChecked(true);
  allowMoreColors_->setChecked(true);
  color_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9A-Fa-f]{6}"), color_));
  autoColor_->addItem(tr("Button shadow (system)"), static_cast<int>(0x80000010));
  autoColor_->addItem(tr("Window text (system)"), static_cast<int>(0x80000008));
  autoColor_->addItem(tr("Black"), 0);

  auto* form = new QFormLayout(this);
  form->addRow(allowAutomatic_);
  form->addRow(allowMoreColors_);
  form->addRow(tr("AutomaticText"), automaticText_);
  form->addRow(tr("MoreColorsText"), moreColorsText_);
  form->addRow(tr("Color (RRGGBB)"), color_);
  form->addRow(tr("AutoColor"), autoColor_);

  for (QCheckBox* box : {allowAutomatic_, allowMoreColors_}) connect(box, &QCheckBox::toggled, this, &PaletteSettings::apply);
  for (QLineEdit* edit : {automaticText_, moreColorsText_, color_})
    connect(edit, &QLineEdit::editingFinished, this, &PaletteSettings::apply);
  connect(autoColor_, &QComboBox::currentIndexChanged, this, &PaletteSettings::apply);
}

void PaletteSettings::addTarget(LumoColorCombo::ColorBox* box) {
  targets_.append(box);
  box->setColor(FromRgbText(color_->text()));
}

void PaletteSettings::apply() {
  for (LumoColorCombo::ColorBox* box : targets_) {
    box->setAllowAutomatic(allowAutomatic_->isChecked());
    box->setAllowMoreColors(allowMoreColors_->isChecked());
    box->setAutomaticText(automaticText_->text());
    box->setMoreColorsText(moreColorsText_->text());
    box->setColor(FromRgbText(color_->text()));
    box->setAutoColor(autoColor_->currentData().toInt());
  }
}
