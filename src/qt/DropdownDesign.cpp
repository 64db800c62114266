#include "qt/DropdownDesign.h"

#include "qt/QtFormWindow.h"

namespace LumoColorCombo::host {

void DropdownDesign::build(QtFormWindow& form) {
  form.setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
  form.setAttribute(Qt::WA_NoMouseReplay);
  form.setBlocksOtherWindows(false);
  form.children().addHostedControl(QStringLiteral("ColorBox1")).move(0, 0);
}

}  // namespace LumoColorCombo::host
