#pragma once

#include <QWidget>

#include <LumoColorCombo/LumoColorCombo.h>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace LumoColorCombo {
class ColorBox;
}

// Editors for the properties of a palette grid (every change goes to each grid added).
class PaletteSettings : public QWidget {
  Q_OBJECT

 public:
  explicit PaletteSettings(QWidget* parent = nullptr);

  void addTarget(LumoColorCombo::ColorBox* box);

 private:
  void apply();

  QList<LumoColorCombo::ColorBox*> targets_;
  QCheckBox* allowAutomatic_;
  QCheckBox* allowMoreColors_;
  QLineEdit* automaticText_;
  QLineEdit* moreColorsText_;
  QLineEdit* color_;
  QComboBox* autoColor_;
};
