#pragma once

#include <QLabel>

#include "colormodel/Label.h"

namespace LumoColorCombo::host {

// A caption beside a drawing surface on a QLabel: one line, its position and size in
// twips of the widget it sits in, its background from a colour value (system colours
// follow the label's palette).
class QtLabel : public QLabel, public lumo::Label {
  Q_OBJECT

 public:
  explicit QtLabel(QWidget* parent = nullptr);

  std::string Caption() const override;
  void SetCaption(const std::string& caption) override;
  void SetBackColor(lumo::OLE_COLOR color) override;
  std::int32_t Left() const override;
  std::int32_t Top() const override;
  std::int32_t Width() const override;
  std::int32_t Height() const override;
  void Move(std::int32_t left, std::int32_t top) override;

  lumo::OLE_COLOR backColor() const { return backColor_; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void ApplyBackColor();

  lumo::OLE_COLOR backColor_ = lumo::sys::ButtonFace;
};

}  // namespace LumoColorCombo::host
