#pragma once

#include <QPointer>
#include <QWidget>

namespace LumoColorCombo::host {

// The window the library's dialogs belong to: they stack over it (transient parent),
// centre on it and draw with its palette. A caller that knows the window names it for
// the length of a call (MoreColorsDialog with a widget as parent, Designer's task menu
// running the dialog over the designed form); otherwise it is the active window, the
// one the user was working in. Named scopes nest. The dialogs themselves stay
// parentless: a host may delete this window while a dialog runs its loop, and a child
// would be freed under its own exec(); the owner then simply reads as gone.
class DialogOwner {
 public:
  // Names `widget`'s window until the scope ends; a null widget names nothing new.
  explicit DialogOwner(QWidget* widget);
  DialogOwner(const DialogOwner&) = delete;
  DialogOwner& operator=(const DialogOwner&) = delete;
  ~DialogOwner();

  // The innermost named window still alive, else the active window (may be null).
  static QWidget* window();

 private:
  QPointer<QWidget> previous_;
  bool named_;
};

}  // namespace LumoColorCombo::host
