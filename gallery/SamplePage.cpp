#include "SamplePage.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "EventLog.h"
#include "colormodel/Types.h"
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorSample.h>

using LumoColorCombo::ColorCombo;
using LumoColorCombo::ColorSample;
using LumoColorCombo::OLE_COLOR;

namespace {

// "Automatic" in the two combos: the theme's text and window colours.
constexpr OLE_COLOR kWindowText = lumo::SystemColor(8);
constexpr OLE_COLOR kWindow = lumo::SystemColor(5);

}  // namespace

SamplePage::SamplePage(EventLog* log, QWidget* parent)
    : QWidget(parent), log_(log), sample_(new ColorSample(this)) {
  sample_->setObjectName(QStringLiteral("ColorSample1"));
  sample_->setMinimumSize(260, 90);
  connect(sample_, &ColorSample::propertyChanged, this,
          [this](const QString& name) { log_->add(sample_->objectName(), QStringLiteral("PropertyChanged(\"%1\")").arg(name)); });

  auto* hint = new QLabel(tr("A sample box previews a colour pair: pick the text colour and the background in "
                             "the two combos and the sample follows. Any BorderStyle other than bcFixedSingle draws "
                             "no frame and is kept as it is."),
                          this);
  hint->setWordWrap(true);
  hint->setMaximumWidth(520);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(buildPickers());
  layout->addWidget(buildSettings());
  layout->addWidget(hint);
  layout->addStretch();
}

QWidget* SamplePage::buildPickers() {
  auto* preview = new QGroupBox(tr("Preview"), this);
  auto* row = new QHBoxLayout(preview);
  row->addWidget(addPicker(tr("Text colour"), kWindowText, sample_->ForeColor(),
                           [this](OLE_COLOR color) { sample_->setForeColor(color); }),
                 0, Qt::AlignTop);
  row->addWidget(addPicker(tr("Background"), kWindow, sample_->BackColor(),
                           [this](OLE_COLOR color) { sample_->setBackColor(color); }),
                 0, Qt::AlignTop);
  row->addSpacing(16);
  row->addWidget(sample_, 0, Qt::AlignVCenter);
  row->addStretch();
  return preview;
}

QWidget* SamplePage::addPicker(const QString& name, OLE_COLOR automatic, OLE_COLOR initial,
                               const std::function<void(OLE_COLOR)>& apply) {
  auto* frame = new QGroupBox(name, this);
  auto* combo = new ColorCombo(frame);
  combo->setObjectName(name);
  combo->setMinimumWidth(150);
  combo->setAllowMoreColors(true);
  combo->setAutoColor(automatic);
  combo->setIsAutomatic(false);
  combo->setColor(initial);
  (new QVBoxLayout(frame))->addWidget(combo, 0, Qt::AlignTop);
  // Every way a drop-down ends (a pick, the dialog, a cancel) ends with AfterDropUp; the
  // combo then holds what the sample should show.
  connect(combo, &ColorCombo::AfterDropUp, this, [combo, apply] {
    apply(combo->IsAutomatic() ? combo->AutoColor() : combo->Color());
  });
  return frame;
}

QWidget* SamplePage::buildSettings() {
  auto* settings = new QGroupBox(tr("Properties"), this);
  text_ = new QLineEdit(sample_->Text(), settings);
  connect(text_, &QLineEdit::textChanged, sample_, &ColorSample::setText);

  border_ = new QComboBox(settings);
  border_->addItem(QStringLiteral("bcNone"), LumoColorCombo::bcNone);
  border_->addItem(QStringLiteral("bcFixedSingle"), LumoColorCombo::bcFixedSingle);
  border_->addItem(tr("2 (kept, no frame)"), 2);
  border_->setCurrentIndex(border_->findData(int(sample_->BorderStyle())));
  connect(border_, &QComboBox::currentIndexChanged, this, [this] {
    sample_->setBorderStyle(LumoColorCombo::KDBorderConstants(border_->currentData().toInt()));
  });

  family_ = new QFontComboBox(settings);
  family_->setCurrentFont(sample_->Font());
  size_ = new QSpinBox(settings);
  size_->setRange(4, 72);
  size_->setSuffix(tr(" pt"));
  size_->setValue(qRound(sample_->Font().pointSizeF()));
  auto* formFont = new QPushButton(tr("Form font"), settings);
  connect(family_, &QFontComboBox::currentFontChanged, this, &SamplePage::applyFont);
  connect(size_, &QSpinBox::valueChanged, this, &SamplePage::applyFont);
  connect(formFont, &QPushButton::clicked, sample_, &ColorSample::resetSampleFont);
  auto* font = new QHBoxLayout;
  font->addWidget(family_, 1);
  font->addWidget(size_);
  font->addWidget(formFont);

  auto* about = new QPushButton(tr("About..."), settings);
  connect(about, &QPushButton::clicked, sample_, &ColorSample::AboutBox);

  auto* form = new QFormLayout(settings);
  form->addRow(QStringLiteral("Text"), text_);
  form->addRow(QStringLiteral("BorderStyle"), border_);
  form->addRow(QStringLiteral("Font"), font);
  form->addRow(QString(), about);
  settings->setMaximumWidth(520);
  return settings;
}

void SamplePage::applyFont() {
  QFont font = family_->currentFont();
  font.setPointSize(size_->value());
  sample_->setSampleFont(font);
}
