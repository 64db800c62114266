#include "qt/QtFormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>

#include <utility>

#include "qt/QtControlSite.h"
#include "qt/QtLabel.h"
#include "qt/QtTextBox.h"
#include "qt/SurfaceWidget.h"
#include "qt/Twips.h"
#include "qt/VirtualKeys.h"
#include "qt/WidgetHandles.h"

namespace LumoColorCombo::host {

QtFormWindow::QtFormWindow(QString formName, lumo::FormEvents& events)
    : formName_(std::move(formName)),
      events_(events),
      children_(*this),
      keyPreview_(*this, [this](QKeyEvent& key) { return PreviewKey(key); }) {
  setObjectName(formName_);
  setAccessibleName(formName_);
  setSizeGripEnabled(false);
  connect(&children_, &FormChildren::clicked, this, [this](const QString& name, int index) {
    if (loaded_) events_.ControlClick(name.toStdString(), index);
  });
  connect(&children_, &FormChildren::textBoxLeft, this, [this](const QString& name) {
    if (loaded_) events_.ControlLostFocus(name.toStdString());
  });
}

QtFormWindow::~QtFormWindow() {
  keyPreview_.setActive(false);
  // A modal show still on the stack returns as soon as control gets back to it.
  if (modalLoop_) modalLoop_->exit();
}

lumo::WindowHandle QtFormWindow::hWnd() const { return WidgetHandles::handleOf(this); }

std::string QtFormWindow::Caption() const { return windowTitle().toStdString(); }

void QtFormWindow::SetCaption(const std::string& caption) {
  setWindowTitle(QString::fromStdString(caption));
  setAccessibleName(windowTitle().isEmpty() ? formName_ : windowTitle());
}

std::int32_t QtFormWindow::Left() const { return Twips::fromPixels(frameGeometry().x()); }
std::int32_t QtFormWindow::Top() const { return Twips::fromPixels(frameGeometry().y()); }
std::int32_t QtFormWindow::Width() const { return Twips::fromPixels(frameGeometry().width()); }
std::int32_t QtFormWindow::Height() const { return Twips::fromPixels(frameGeometry().height()); }
std::int32_t QtFormWindow::ScaleWidth() const { return Twips::fromPixels(width()); }
std::int32_t QtFormWindow::ScaleHeight() const { return Twips::fromPixels(height()); }

// The frame around the client area; nothing for a frameless window or one the window
// system has not decorated yet.
QSize QtFormWindow::FrameExtra() const { return frameGeometry().size() - size(); }

void QtFormWindow::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  moved_ = true;
  const QRect outer(Twips::toPixels(left), Twips::toPixels(top), Twips::toPixels(width), Twips::toPixels(height));
  PlaceFrame(outer);
  if (isVisible()) {
    pendingFrame_.reset();
  } else {
    pendingFrame_ = outer;
  }
}

void QtFormWindow::PlaceFrame(const QRect& outer) {
  const QSize extra = FrameExtra();
  // move() places a top-level window's frame; resize() sizes its client area.
  move(outer.topLeft());
  resize(qMax(0, outer.width() - extra.width()), qMax(0, outer.height() - extra.height()));
}

void QtFormWindow::Show(bool modal) {
  if (!loaded_ || (modal && modalLoop_)) return;
  PrepareShow(modal);
  show();
  if (pendingFrame_) PlaceFrame(*std::exchange(pendingFrame_, std::nullopt));
  raise();
  activateWindow();
  if (!modal) return;

  QEventLoop loop;
  modalLoop_ = &loop;
  const QPointer<QtFormWindow> alive(this);
  // The form may have been unloaded while it was being shown.
  if (loaded_) loop.exec(QEventLoop::DialogExec);
  if (alive) modalLoop_ = nullptr;
}

void QtFormWindow::PrepareShow(bool modal) {
  // Modality can only change while the window is hidden.
  if (!isVisible()) setWindowModality(modal && blocksOtherWindows_ ? Qt::ApplicationModal : Qt::NonModal);
  if (!moved_ && centredOnFirstShow_) CentreOverActiveWindow();
  moved_ = true;
}

void QtFormWindow::CentreOverActiveWindow() {
  adjustSize();
  const QWidget* owner = QApplication::activeWindow();
  const QScreen* screen = owner ? owner->screen() : QGuiApplication::primaryScreen();
  const QRect area = owner ? owner->frameGeometry() : (screen ? screen->availableGeometry() : QRect());
  if (area.isValid()) move(area.center() - rect().center());
}

void QtFormWindow::Unload() { UnloadWithMode(lumo::unloadmode::Code); }

bool QtFormWindow::UnloadWithMode(std::int32_t mode) {
  if (!loaded_) return true;
  if (unloading_) return false;
  unloading_ = true;
  bool cancel = false;
  events_.Form_QueryUnload(cancel, mode);
  unloading_ = false;
  if (cancel) return false;

  loaded_ = false;
  keyPreview_.setActive(false);
  hide();
  events_.Form_Unload();
  if (modalLoop_) modalLoop_->exit();
  return true;
}

void QtFormWindow::Refresh() { update(); }

lumo::DrawingSurface& QtFormWindow::Surface(const std::string& name) {
  return children_.surface(QString::fromStdString(name));
}

lumo::ControlSite& QtFormWindow::Site(const std::string& name) { return children_.site(QString::fromStdString(name)); }

lumo::TextBox& QtFormWindow::TextField(const std::string& name) {
  return children_.textBox(QString::fromStdString(name));
}

lumo::Label& QtFormWindow::LabelNamed(const std::string& name) {
  return children_.label(QString::fromStdString(name));
}

void QtFormWindow::reject() { close(); }

bool QtFormWindow::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Show: keyPreview_.setActive(loaded_); break;
    case QEvent::Hide: keyPreview_.setActive(false); break;
    case QEvent::WindowActivate:
      if (loaded_) events_.Form_Activate();
      break;
    case QEvent::WindowDeactivate:
      if (loaded_) events_.Form_Deactivate();
      break;
    default: break;
  }
  return QDialog::event(event);
}

void QtFormWindow::closeEvent(QCloseEvent* event) {
  if (UnloadWithMode(lumo::unloadmode::ControlMenu)) {
    event->accept();
  } else {
    event->ignore();
  }
}

bool QtFormWindow::PreviewKey(QKeyEvent& event) {
  std::int16_t keyCode = VirtualKeys::keyCode(event);
  if (!loaded_ || keyCode == 0) return false;
  events_.Form_KeyDown(keyCode, VirtualKeys::shiftState(event.modifiers()));
  return keyCode == 0;
}

void QtFormWindow::keyPressEvent(QKeyEvent* event) {
  // Return in a text field commits the text (the field reports it); it does not press
  // the default button, which would close the dialog with the text not yet taken in.
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && qobject_cast<QLineEdit*>(focusWidget())) {
    event->accept();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace LumoColorCombo::host
