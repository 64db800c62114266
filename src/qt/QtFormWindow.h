#pragma once

#include <optional>

#include <QDialog>
#include <QPointer>
#include <QString>

#include "colormodel/FormEvents.h"
#include "colormodel/FormWindow.h"
#include "qt/FormChildren.h"
#include "qt/KeyPreview.h"

class QEventLoop;

namespace LumoColorCombo::host {

// One of the library's own top-level windows. Its children come from the form's
// design (see FormDesigns); its events go to the core object behind it.
//
// - A modal Show runs a nested event loop until the form is unloaded; timers, painting
//   and input keep running inside it.
// - Unload and the user's close (title bar, system menu, Escape) both ask
//   Form_QueryUnload first, with the mode telling which it was; a cancel keeps the form
//   open. Otherwise the form hides, Form_Unload runs and a modal Show returns.
// - Activation changes are Form_Activate / Form_Deactivate; every key pressed anywhere
//   in the window reaches Form_KeyDown before the focused child (key preview), and
//   setting the key code to 0 there swallows the key.
// - Positions and sizes are twips: Left/Top/Width/Height of the outer frame,
//   ScaleWidth/ScaleHeight of the client area. The window system adds the frame when
//   the window is first shown, so a Move made while hidden is applied again then.
// - When shown, the window belongs to its owner (DialogOwner: the window a caller
//   named, else the active one): it stacks over it (transient parent) and takes its
//   palette, so a dark application gets dark forms.
// - A popup form (Qt::Popup in its design: the drop-down) is placed at its Move'd
//   screen position over that window. Qt never activates a popup, so the form gets
//   Form_Activate once it is exposed, the keyboard focus goes to its first child that
//   takes it, and the window system reports it as the active window while it is open.
//   When Qt closes it by itself (a press outside the application, the application
//   losing the activation, the compositor dismissing it) the form gets Form_Deactivate
//   and decides; a press outside it while one of its children holds the mouse goes to
//   that child, as a capture does. While a modal window shows over it, the popup
//   steps aside (hidden, Form_Deactivate), since Qt gives a popup all input; it comes
//   back when that window goes, if the form is still loaded.
// Once unloaded, the window delivers nothing more; the object stays valid until deleted.
class QtFormWindow : public QDialog, public lumo::FormWindow {
  Q_OBJECT

 public:
  QtFormWindow(QString formName, lumo::FormEvents& events);
  ~QtFormWindow() override;

  lumo::WindowHandle hWnd() const override;
  std::string Caption() const override;
  void SetCaption(const std::string& caption) override;

  std::int32_t Left() const override;
  std::int32_t Top() const override;
  std::int32_t Width() const override;
  std::int32_t Height() const override;
  std::int32_t ScaleWidth() const override;
  std::int32_t ScaleHeight() const override;
  void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) override;

  void Show(bool modal) override;
  void Unload() override;
  bool IsLoaded() const override { return loaded_; }
  void Refresh() override;

  lumo::DrawingSurface& Surface(const std::string& name) override;
  lumo::ControlSite& Site(const std::string& name) override;
  lumo::TextBox& TextField(const std::string& name) override;
  lumo::Label& LabelNamed(const std::string& name) override;

  // --- Qt side ---------------------------------------------------------------------
  const QString& formName() const { return formName_; }
  // The designed children by name: findLabel("lblHeader(0)"), findButton("cmdButton", 1).
  FormChildren& children() { return children_; }
  const FormChildren& children() const { return children_; }
  bool isShowingModally() const { return modalLoop_ != nullptr; }
  bool isPopup() const { return windowType() == Qt::Popup; }
  // A modal show of this form blocks the application's other windows (a dialog). A form
  // that must close when the user turns elsewhere (the drop-down) leaves them usable.
  void setBlocksOtherWindows(bool blocks) { blocksOtherWindows_ = blocks; }
  // Centres the window over the active window when it is first shown without a Move.
  void setCentredOnFirstShow(bool centred) { centredOnFirstShow_ = centred; }

 public slots:
  // Escape in a dialog: the same as closing it from the title bar.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool UnloadWithMode(std::int32_t mode);
  bool PreviewKey(QKeyEvent& event);
  void PrepareShow(bool modal);
  void BelongToOpener();
  void Present();
  void CentreOverActiveWindow();
  QSize FrameExtra() const;
  void PlaceFrame(const QRect& outer);
  // --- popup forms ---
  void ActivateWhenExposed();
  void DeliverActivation();
  bool ForwardToCapture(QMouseEvent& event);
  void WatchForModalWindows(bool watch);
  void StepAside();
  void ComeBack();

  QString formName_;
  lumo::FormEvents& events_;
  FormChildren children_;
  KeyPreview keyPreview_;
  QEventLoop* modalLoop_ = nullptr;
  // Outer geometry asked for while hidden, when the frame's size is not known yet.
  std::optional<QRect> pendingFrame_;
  bool loaded_ = true;
  bool unloading_ = false;
  bool moved_ = false;
  bool blocksOtherWindows_ = false;
  bool centredOnFirstShow_ = false;
  // A popup shown and waiting to be exposed before its Form_Activate.
  bool activationPending_ = false;
  // A popup hidden while a modal window runs over it.
  bool steppedAside_ = false;
  bool watchingModals_ = false;
};

}  // namespace LumoColorCombo::host
