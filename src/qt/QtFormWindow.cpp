#include "qt/QtFormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <utility>

#include "qt/DialogOwner.h"
#include "qt/QtControlSite.h"
#include "qt/QtLabel.h"
#include "qt/QtTextBox.h"
#include "qt/SurfaceWidget.h"
#include "qt/Twips.h"
#include "qt/VirtualKeys.h"
#include "qt/WidgetHandles.h"

namespace LumoColorCombo::host {
namespace {

bool IsModalWindow(QObject* object, const QWidget* except) {
  const auto* widget = qobject_cast<QWidget*>(object);
  return widget != nullptr && widget != except && widget->isWindow() && widget->isModal();
}

}  // namespace

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
  WatchForModalWindows(false);
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
  Present();
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

void QtFormWindow::Present() {
  BelongToOpener();
  show();
  if (pendingFrame_) PlaceFrame(*std::exchange(pendingFrame_, std::nullopt));
  raise();
  if (!isPopup()) {
    activateWindow();
    return;
  }
  // Moves without a button reach a widget only if it tracks them: outside its children
  // they are the popup's, to pass on to a child holding the mouse.
  setMouseTracking(true);
  // Qt gives an open popup the keys; its first child that takes the focus gets them.
  QWidget* first = this;
  do {
    first = first->nextInFocusChain();
  } while (first != this && !(first->focusPolicy() & Qt::TabFocus && first->isVisible() && first->isEnabled()));
  if (first != this) first->setFocus(Qt::PopupFocusReason);
  ActivateWhenExposed();
  WatchForModalWindows(true);
}

// The dialog owner (DialogOwner: a window the caller named, else the active window)
// opens the form: the form stacks over it (for a popup, the window it is placed
// against) and draws with its palette.
void QtFormWindow::BelongToOpener() {
  QWidget* opener = DialogOwner::window();
  if (opener == nullptr || opener == this) return;
  setPalette(opener->palette());
  if (windowHandle() == nullptr) create();
  windowHandle()->setTransientParent(opener->windowHandle());
}

void QtFormWindow::CentreOverActiveWindow() {
  adjustSize();
  const QWidget* owner = DialogOwner::window();
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
  WatchForModalWindows(false);
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

// --- popup forms ---------------------------------------------------------------------------

void QtFormWindow::ActivateWhenExposed() {
  activationPending_ = true;
  QWindow* window = windowHandle();
  if (window != nullptr && !window->isExposed()) {
    window->installEventFilter(this);
    return;
  }
  QMetaObject::invokeMethod(this, &QtFormWindow::DeliverActivation, Qt::QueuedConnection);
}

// From the event loop, not from inside the expose: the activation may run a whole
// opening animation that yields to the loop.
void QtFormWindow::DeliverActivation() {
  if (!activationPending_ || !loaded_ || !isVisible()) return;
  activationPending_ = false;
  events_.Form_Activate();
}

// Qt sends a popup's mouse events that fall outside its children to the popup itself;
// while a child holds the mouse (a grid that watches for a press outside it), they are
// that child's, as a capture requires.
bool QtFormWindow::ForwardToCapture(QMouseEvent& event) {
  QWidget* holder = QWidget::mouseGrabber();
  if (!isPopup() || holder == nullptr || !isAncestorOf(holder)) return false;
  QMouseEvent forwarded(event.type(), holder->mapFromGlobal(event.globalPosition()), event.scenePosition(),
                        event.globalPosition(), event.button(), event.buttons(), event.modifiers(),
                        event.pointingDevice());
  QCoreApplication::sendEvent(holder, &forwarded);
  return true;
}

void QtFormWindow::mousePressEvent(QMouseEvent* event) {
  if (!ForwardToCapture(*event)) QDialog::mousePressEvent(event);
}

void QtFormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (!ForwardToCapture(*event)) QDialog::mouseMoveEvent(event);
}

void QtFormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (!ForwardToCapture(*event)) QDialog::mouseReleaseEvent(event);
}

void QtFormWindow::WatchForModalWindows(bool watch) {
  if (watch == watchingModals_ || !QCoreApplication::instance()) return;
  watchingModals_ = watch;
  if (watch) {
    QCoreApplication::instance()->installEventFilter(this);
  } else {
    QCoreApplication::instance()->removeEventFilter(this);
  }
}

// A popup takes every press and key in the application, so a modal window shown over
// it (the More Colors dialog it opens, a message box) could not be used: the popup
// loses the activation and hides until that window goes.
void QtFormWindow::StepAside() {
  steppedAside_ = true;
  activationPending_ = false;
  hide();
  events_.Form_Deactivate();
}

// Once the modal window has gone, and only if the form kept itself loaded meanwhile.
void QtFormWindow::ComeBack() {
  if (!steppedAside_ || !loaded_ || QApplication::activeModalWidget() != nullptr) return;
  steppedAside_ = false;
  Present();
}

bool QtFormWindow::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Expose && watched == windowHandle() && windowHandle()->isExposed()) {
    watched->removeEventFilter(this);
    QMetaObject::invokeMethod(this, &QtFormWindow::DeliverActivation, Qt::QueuedConnection);
  } else if (type == QEvent::Show && loaded_ && isVisible() && IsModalWindow(watched, this)) {
    StepAside();
  } else if (type == QEvent::Hide && steppedAside_ && IsModalWindow(watched, this)) {
    // Later, so that a form that unloads once the modal window returns never flashes.
    QTimer::singleShot(0, this, &QtFormWindow::ComeBack);
  }
  return false;
}

// --- events ----------------------------------------------------------------------------------

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
  if (isPopup()) {
    // Qt closes a popup by itself when the user turns elsewhere: for the form that is
    // losing the activation, and the form decides whether it goes.
    if (loaded_) events_.Form_Deactivate();
    event->setAccepted(!loaded_);
    return;
  }
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
