#include "ComboPropertyEditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSpinBox>

#include <LumoColorCombo/ColorCombo.h>

using LumoColorCombo::ColorCombo;

namespace {

// Colours as the controls store them, blue in the high byte: "0x00336699", or
// "0x8000000F" for a system colour.
QString ColourText(int value) {
  return QStringLiteral("0x") + QStringLiteral("%1").arg(quint32(value), 8, 16, QLatin1Char('0')).toUpper();
}

}  // namespace

ComboPropertyEditor::ComboPropertyEditor(QWidget* parent) : QWidget(parent), form_(new QFormLayout(this)) {
  const QMetaObject& meta = ColorCombo::staticMetaObject;
  for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    if (property.isUser()) continue;  // currentColor: Color and IsAutomatic in one
    if (QWidget* editor = editorFor(property)) form_->addRow(QString::fromLatin1(property.name()), editor);
  }
  setEnabled(false);
}

void ComboPropertyEditor::setTarget(ColorCombo* combo) {
  target_ = combo;
  setEnabled(combo != nullptr);
  reload();
}

void ComboPropertyEditor::reload() {
  if (!target_) return;
  loading_ = true;
  for (const auto& load : loaders_) load();
  loading_ = false;
}

void ComboPropertyEditor::write(const QMetaProperty& property, const QVariant& value) {
  if (loading_ || !target_) return;
  property.write(target_, value);
  reload();  // a set may change other properties (AllowAutomatic clears IsAutomatic)
}

QWidget* ComboPropertyEditor::editorFor(const QMetaProperty& property) {
  if (property.isEnumType()) return choiceEditor(property);
  switch (property.metaType().id()) {
    case QMetaType::Bool: return flagEditor(property);
    case QMetaType::QString: return textEditor(property, false);
    case QMetaType::Int: return textEditor(property, true);  // OLE_COLOR
    case QMetaType::QFont: return fontEditor(property);
    default: return nullptr;
  }
}

QWidget* ComboPropertyEditor::flagEditor(const QMetaProperty& property) {
  auto* box = new QCheckBox(this);
  connect(box, &QCheckBox::toggled, this, [this, property](bool on) { write(property, on); });
  loaders_.emplace_back([this, box, property] { box->setChecked(property.read(target_).toBool()); });
  return box;
}

QWidget* ComboPropertyEditor::choiceEditor(const QMetaProperty& property) {
  auto* list = new QComboBox(this);
  const QMetaEnum values = property.enumerator();
  for (int k = 0; k < values.keyCount(); ++k) list->addItem(QString::fromLatin1(values.key(k)), values.value(k));
  connect(list, &QComboBox::activated, this, [this, list, property] { write(property, list->currentData()); });
  loaders_.emplace_back([this, list, property] {
    list->setCurrentIndex(list->findData(property.read(target_).toInt()));
  });
  return list;
}

QWidget* ComboPropertyEditor::textEditor(const QMetaProperty& property, bool colour) {
  auto* line = new QLineEdit(this);
  if (colour) line->setPlaceholderText(QStringLiteral("0xBBGGRR, or 0x800000nn for a system colour"));
  connect(line, &QLineEdit::editingFinished, this, [this, line, property, colour] {
    if (!colour) return write(property, line->text());
    bool ok = false;
    const quint32 value = QString(line->text()).remove(QStringLiteral("0x"), Qt::CaseInsensitive).toUInt(&ok, 16);
    if (ok) write(property, qint32(value));
  });
  loaders_.emplace_back([this, line, property, colour] {
    const QVariant value = property.read(target_);
    line->setText(colour ? ColourText(value.toInt()) : value.toString());
  });
  return line;
}

QWidget* ComboPropertyEditor::fontEditor(const QMetaProperty& property) {
  auto* holder = new QWidget(this);
  auto* family = new QFontComboBox(holder);
  auto* size = new QSpinBox(holder);
  size->setRange(4, 48);
  size->setSuffix(tr(" pt"));
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(family, 1);
  row->addWidget(size);
  const auto apply = [this, family, size, property] {
    QFont font = family->currentFont();
    font.setPointSize(size->value());
    write(property, font);
  };
  connect(family, &QFontComboBox::currentFontChanged, this, apply);
  connect(size, &QSpinBox::valueChanged, this, apply);
  loaders_.emplace_back([this, family, size, property] {
    const QFont font = property.read(target_).value<QFont>();
    family->setCurrentFont(font);
    size->setValue(qRound(font.pointSizeF()));
  });
  return holder;
}
