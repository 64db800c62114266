#pragma once

#include <functional>
#include <vector>

#include <QPointer>
#include <QWidget>

#include <LumoColorCombo/ColorCombo.h>

class QFormLayout;
class QMetaProperty;

// Editors for every published property of one colour combo, made from its meta-object:
// a check box for a flag, a list for an enumeration, a line for a text or a colour
// (hex, system colours with the top bit set), a family and a size for the font.
class ComboPropertyEditor : public QWidget {
  Q_OBJECT

 public:
  explicit ComboPropertyEditor(QWidget* parent = nullptr);

  void setTarget(LumoColorCombo::ColorCombo* combo);
  LumoColorCombo::ColorCombo* target() const { return target_; }
  // Shows the target's values again (a pick changed some of them).
  void reload();

 private:
  QWidget* editorFor(const QMetaProperty& property);
  QWidget* flagEditor(const QMetaProperty& property);
  QWidget* choiceEditor(const QMetaProperty& property);
  QWidget* textEditor(const QMetaProperty& property, bool colour);
  QWidget* fontEditor(const QMetaProperty& property);
  void write(const QMetaProperty& property, const QVariant& value);

  QPointer<LumoColorCombo::ColorCombo> target_;
  QFormLayout* form_;
  std::vector<std::function<void()>> loaders_;  // each puts the target's value in its editor
  bool loading_ = false;
};
