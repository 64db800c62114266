#include "qt/KeyPreview.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace LumoColorCombo::host {

KeyPreview::KeyPreview(QWidget& window, Look look) : window_(&window), look_(std::move(look)) {}

KeyPreview::~KeyPreview() { setActive(false); }

void KeyPreview::setActive(bool active) {
  if (active == active_ || !QCoreApplication::instance()) return;
  active_ = active;
  if (active) {
    QCoreApplication::instance()->installEventFilter(this);
  } else {
    QCoreApplication::instance()->removeEventFilter(this);
  }
}

bool KeyPreview::IsInWindow(QObject* object) const {
  const auto* widget = qobject_cast<QWidget*>(object);
  return widget && window_ && widget->window() == window_;
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || delivering_ || !IsInWindow(watched)) return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const QPointer<KeyPreview> self(this);
  const QPointer<QObject> target(watched);
  const bool swallowed = look_(key);
  if (!self) return true;
  if (!swallowed && target) {
    delivering_ = true;
    QCoreApplication::sendEvent(target, event);
    if (!self) return true;
    delivering_ = false;
  }
  // Handled either way: Qt must not pass the key on to the parents a second time.
  key.accept();
  return true;
}

}  // namespace LumoColorCombo::host
