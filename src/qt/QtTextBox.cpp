#include "qt/QtTextBox.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace LumoColorCombo::host {
namespace {

// Focus changes that come from the window as a whole rather than from the user moving
// between the window's controls.
bool IsWindowLevel(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

}  // namespace

QtTextBox::QtTextBox(QLineEdit* edit, QObject* parent) : QObject(parent), edit_(edit) {
  edit->installEventFilter(this);
  connect(edit, &QLineEdit::textEdited, this, [this] { leavePending_ = true; });
  // Return is the other half of editingFinished: the user commits without leaving.
  connect(edit, &QLineEdit::returnPressed, this, [this] { Leave(); });
  leavePending_ = edit->hasFocus();
}

std::string QtTextBox::Text() const { return edit_ ? edit_->text().toStdString() : std::string(); }

void QtTextBox::SetText(const std::string& text) {
  if (edit_) edit_->setText(QString::fromStdString(text));
}

bool QtTextBox::eventFilter(QObject* watched, QEvent* event) {
  if (watched == edit_) {
    if (event->type() == QEvent::FocusIn && !IsWindowLevel(static_cast<QFocusEvent*>(event)->reason())) {
      leavePending_ = true;
    } else if (event->type() == QEvent::FocusOut && !IsWindowLevel(static_cast<QFocusEvent*>(event)->reason())) {
      Leave();
    }
  }
  return QObject::eventFilter(watched, event);
}

void QtTextBox::Leave() {
  if (!leavePending_) return;
  leavePending_ = false;
  emit lostFocus();
}

}  // namespace LumoColorCombo::host
