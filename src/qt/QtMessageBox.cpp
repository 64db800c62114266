#include "qt/QtMessageBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

#include <vector>

#include "qt/DialogOwner.h"

namespace LumoColorCombo::host {
namespace {

// The style value's fields: buttons in the low three bits, the icon in 0x70, the
// default button's position in 0x300.
constexpr std::int32_t kButtonsMask = 0x7;
constexpr std::int32_t kIconMask = 0x70;
constexpr std::int32_t kDefaultShift = 8;

// Button codes MsgBox answers.
constexpr std::int32_t kOk = 1;
constexpr std::int32_t kCancel = 2;

QMessageBox::Icon IconOf(std::int32_t style) {
  switch (style & kIconMask) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

struct Choice {
  QMessageBox::StandardButton button;
  std::int32_t code;
};

// The buttons in their on-screen order, as the default-button field counts them.
std::vector<Choice> ChoicesOf(std::int32_t style) {
  using B = QMessageBox;
  switch (style & kButtonsMask) {
    case 1: return {{B::Ok, kOk}, {B::Cancel, kCancel}};
    case 2: return {{B::Abort, 3}, {B::Retry, 4}, {B::Ignore, 5}};
    case 3: return {{B::Yes, 6}, {B::No, 7}, {B::Cancel, kCancel}};
    case 4: return {{B::Yes, 6}, {B::No, 7}};
    case 5: return {{B::Retry, 4}, {B::Cancel, kCancel}};
    default: return {{B::Ok, kOk}};
  }
}

// Escape answers Cancel where there is one, and the only button of a one-button box;
// boxes without either ignore Escape, so the answer is always a button of the box.
void SetEscapeButton(QMessageBox& box, const std::vector<Choice>& choices) {
  for (const Choice& choice : choices) {
    if (choice.code == kCancel) box.setEscapeButton(choice.button);
  }
  if (choices.size() == 1) box.setEscapeButton(choices.front().button);
}

}  // namespace

std::string QtMessageBox::displayText(const std::string& prompt) {
  std::string shown;
  shown.reserve(prompt.size());
  for (std::size_t i = 0; i < prompt.size(); ++i) {
    if (prompt[i] == '\r' && i + 1 < prompt.size() && prompt[i + 1] == '\n') continue;
    shown.push_back(prompt[i]);
  }
  return shown;
}

std::int32_t QtMessageBox::MsgBox(const std::string& prompt, std::int32_t style, const std::string& title) {
  // A parentless heap box: a host may delete the active window, or the whole form,
  // from a timer while the box runs its loop, and a box parented there would be freed
  // under its own exec(). It still stands over that window while the window lives.
  QPointer<QMessageBox> box = new QMessageBox(IconOf(style), QString::fromStdString(title),
                                              QString::fromStdString(displayText(prompt)), QMessageBox::NoButton);
  box->setTextFormat(Qt::PlainText);
  const std::vector<Choice> choices = ChoicesOf(style);
  for (const Choice& choice : choices) box->addButton(choice.button);
  const std::size_t defaultIndex = static_cast<std::size_t>((style >> kDefaultShift) & 0x3);
  box->setDefaultButton(choices[defaultIndex < choices.size() ? defaultIndex : 0].button);
  SetEscapeButton(*box, choices);
  box->setWindowModality(Qt::ApplicationModal);
  StandOver(*box, DialogOwner::window());

  const int answer = box->exec();
  if (box.isNull()) return choices.size() == 1 ? choices.front().code : kCancel;
  delete box.data();
  for (const Choice& choice : choices) {
    if (choice.button == answer) return choice.code;
  }
  return choices.size() == 1 ? choices.front().code : kCancel;
}

void QtMessageBox::StandOver(QWidget& box, QWidget* owner) {
  if (owner == nullptr) return;
  box.winId();
  QWidget* ownerWindow = owner->window();
  if (box.windowHandle() && ownerWindow->windowHandle()) {
    box.windowHandle()->setTransientParent(ownerWindow->windowHandle());
  }
}

}  // namespace LumoColorCombo::host
