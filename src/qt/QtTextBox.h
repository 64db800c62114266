#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>

#include "colormodel/TextBox.h"

namespace LumoColorCombo::host {

// A form's one-line text field on a QLineEdit, converting UTF-8 at the boundary. It
// tells when the user is done with the field: once per leave, when the focus moves to
// another control of the window or Return commits the text. Focus that goes away with
// the whole window (another window activated, a menu opened) is no leave: the field
// still has the focus of its window.
class QtTextBox : public QObject, public lumo::TextBox {
  Q_OBJECT

 public:
  explicit QtTextBox(QLineEdit* edit, QObject* parent = nullptr);

  std::string Text() const override;
  void SetText(const std::string& text) override;

  QLineEdit* lineEdit() const { return edit_; }

 signals:
  void lostFocus();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Leave();

  QPointer<QLineEdit> edit_;
  // Set when the user enters or edits the field, cleared when the leave is reported.
  bool leavePending_ = false;
};

}  // namespace LumoColorCombo::host
