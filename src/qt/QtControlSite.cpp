#include "qt/QtControlSite.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

#include "qt/Twips.h"
#include "qt/WidgetHandles.h"

namespace LumoColorCombo::host {
namespace {

// Points per logical pixel at the 96 dpi that the fixed 15 twips per pixel stands for.
constexpr double kPointsPerPixel = 0.75;

}  // namespace

QtControlSite::QtControlSite(QWidget* widget, QObject* parent) : QObject(parent), widget_(widget) {
  if (widget_) widget_->installEventFilter(this);
  if (qApp) connect(qApp, &QApplication::focusChanged, this, &QtControlSite::FocusChanged);
}

QtControlSite::~QtControlSite() { ClearShortcuts(); }

void QtControlSite::PropertyChanged(const std::string& name) {
  if (changeHandler_) {
    changeHandler_(QString::fromStdString(name));
  } else {
    emit propertyChanged(QString::fromStdString(name));
  }
}

lumo::StdFont QtControlSite::toStdFont(const QFont& font) {
  lumo::StdFont result;
  result.Name = font.family().toStdString();
  result.Size = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * kPointsPerPixel;
  result.Bold = font.bold();
  result.Italic = font.italic();
  result.Underline = font.underline();
  result.Strikethrough = font.strikeOut();
  return result;
}

lumo::StdFont QtControlSite::AmbientFont() const {
  if (!widget_) return toStdFont(QApplication::font());
  if (const QWidget* form = widget_->parentWidget()) return toStdFont(form->font());
  return toStdFont(QApplication::font(widget_));
}

std::string QtControlSite::AmbientDisplayName() const {
  return widget_ ? widget_->objectName().toStdString() : std::string();
}

std::int32_t QtControlSite::Width() const { return widget_ ? Twips::fromPixels(widget_->width()) : 0; }

std::int32_t QtControlSite::Height() const { return widget_ ? Twips::fromPixels(widget_->height()) : 0; }

void QtControlSite::Size(std::int32_t width, std::int32_t height) {
  if (!widget_) return;
  if (widthFromContainer_) {
    widget_->setFixedHeight(Twips::toPixels(height));
    widget_->resize(Twips::toPixels(width), widget_->height());
  } else {
    widget_->setFixedSize(Twips::toPixels(width), Twips::toPixels(height));
  }
  widget_->updateGeometry();
}

void QtControlSite::SetEnabled(bool enabled) {
  if (widget_) widget_->setEnabled(enabled);
}

void QtControlSite::SetAccessKeys(const std::string& keys) {
  accessKeys_ = QString::fromStdString(keys);
  ClearShortcuts();
  if (!widget_) return;
  for (const QChar key : accessKeys_) {
    if (!key.isLetterOrNumber() || key.unicode() > 0x7F) continue;
    auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | Qt::Key(key.toUpper().unicode())), widget_);
    connect(shortcut, &QShortcut::activated, this, [this, key] {
      if (widget_) widget_->setFocus(Qt::ShortcutFocusReason);
      emit accessKeyPressed(QString(key));
      // Last: the control may open a modal window here, during which the site may go.
      if (lumo::ControlEvents* control = Control()) {
        control->UserControl_AccessKeyPress(static_cast<std::int16_t>(key.unicode()));
      }
    });
    shortcuts_.emplace_back(shortcut);
  }
}

lumo::WindowHandle QtControlSite::hWnd() const { return WidgetHandles::handleOf(widget_); }

// The filter only watches: the widget handles every event as usual afterwards.
bool QtControlSite::eventFilter(QObject* watched, QEvent* event) {
  lumo::ControlEvents* control = Control();
  if (control == nullptr || watched != widget_) return false;
  switch (event->type()) {
    case QEvent::Resize:
      control->UserControl_Resize();
      break;
    case QEvent::Show:
      // A designer shows the control without running it.
      if (!event->spontaneous() && userMode_) control->UserControl_Show();
      break;
    case QEvent::Hide:
      if (!event->spontaneous()) control->UserControl_Hide();
      break;
    default:
      break;
  }
  return false;
}

bool QtControlSite::Holds(const QWidget* focus) const {
  return focus != nullptr && widget_ && (focus == widget_ || widget_->isAncestorOf(focus));
}

// Moving between the widget and its own children stays inside the control: only Got/
// LostFocus of the widget itself may change then.
void QtControlSite::FocusChanged(QWidget* old, QWidget* now) {
  const bool wasIn = Holds(old);
  const bool isIn = Holds(now);
  if (!wasIn && !isIn) return;
  const bool lost = wasIn && old == widget_ && now != widget_;
  const bool got = isIn && now == widget_ && old != widget_;
  // A handler may delete the widget and its site; what follows checks first.
  const QPointer<QtControlSite> alive(this);
  const auto deliver = [&](void (lumo::ControlEvents::*handler)()) {
    if (!alive) return;
    if (lumo::ControlEvents* control = Control()) (control->*handler)();
  };
  if (lost) deliver(&lumo::ControlEvents::UserControl_LostFocus);
  if (wasIn && !isIn) deliver(&lumo::ControlEvents::UserControl_ExitFocus);
  if (!wasIn && isIn) deliver(&lumo::ControlEvents::UserControl_EnterFocus);
  if (got) deliver(&lumo::ControlEvents::UserControl_GotFocus);
}

void QtControlSite::ClearShortcuts() {
  for (const QPointer<QShortcut>& shortcut : shortcuts_) delete shortcut.data();
  shortcuts_.clear();
}

}  // namespace LumoColorCombo::host
