#pragma once

#include "colormodel/MessageBox.h"

class QWidget;

namespace LumoColorCombo::host {

// MsgBox on a heap QMessageBox: modal, over the active window, icon and buttons from the
// style value, answering the platform's button codes (1 OK, 2 Cancel, 3 Abort,
// 4 Retry, 5 Ignore, 6 Yes, 7 No).
class QtMessageBox : public lumo::MessageBox {
 public:
  std::int32_t MsgBox(const std::string& prompt, std::int32_t style, const std::string& title) override;

  // The prompt as shown: the core ends its lines with CR LF, Qt wants "\n".
  static std::string displayText(const std::string& prompt);

  // Makes a parentless dialog transient for `owner`'s window, so it stays over that
  // window without being freed with it.
  static void StandOver(QWidget& box, QWidget* owner);
};

}  // namespace LumoColorCombo::host
