#pragma once

#include <QAccessibleWidget>

namespace LumoColorCombo {
class ColorCombo;
}

namespace LumoColorCombo::host {

// The colour combo as a combo box: its value is the name of the colour last picked in
// its drop-down or, while IsAutomatic, the automatic text; the description is the
// colour's text ("#RRGGBB"). The drop-down, while open, is a popup window of its own
// whose grid reads as a list like any grid (AccessibleCellList).
class AccessibleColorCombo : public QAccessibleWidget {
 public:
  explicit AccessibleColorCombo(ColorCombo* combo);

  QString text(QAccessible::Text t) const override;

 private:
  QString value() const;
  QString colorText() const;
};

}  // namespace LumoColorCombo::host
