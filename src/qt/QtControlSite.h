#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QString>

#include "colormodel/ControlSite.h"

class QEvent;
class QFont;
class QShortcut;
class QWidget;

namespace LumoColorCombo::host {

// The container side of a control, for any QWidget that hosts one: the widget's size in
// twips, its enabled state, the ambient properties of the form it sits on and the
// change notification, which the widget re-emits as its own signal. The site does not
// own the widget and is harmless once the widget is gone.
//
// It is also the one place that turns the widget's life into the attached control's
// events (ControlEvents): a resize is UserControl_Resize; being shown or hidden by the
// application (not by the window system minimising it) is UserControl_Show/Hide, Show
// only at run time; the focus moving onto the widget or one of its children is
// EnterFocus (and GotFocus when it is the widget itself), moving away the reverse; an
// access key is UserControl_AccessKeyPress. A widget an application places and a control
// hosted on one of the library's forms get exactly the same events this way.
class QtControlSite : public QObject, public lumo::ControlSite {
  Q_OBJECT

 public:
  explicit QtControlSite(QWidget* widget, QObject* parent = nullptr);
  ~QtControlSite() override;

  // Emits propertyChanged, or, when the widget takes the change itself
  // (setChangeHandler), hands it to the widget instead.
  void PropertyChanged(const std::string& name) override;
  // The widget's own way to announce a change: a plain call, where a connection per
  // control would cost more heap than the call's work.
  void setChangeHandler(std::function<void(const QString&)> handler) { changeHandler_ = std::move(handler); }

  // The font of the form the control sits on (the parent's font; the application's font
  // for a widget without a parent), not the control's own.
  lumo::StdFont AmbientFont() const override;
  bool AmbientUserMode() const override { return userMode_; }
  std::string AmbientDisplayName() const override;

  std::int32_t Width() const override;
  std::int32_t Height() const override;
  // The controls size themselves to their content: the widget gets exactly this size,
  // or, for a control whose width is its container's, this height and this width as a
  // start that layouts may change.
  void Size(std::int32_t width, std::int32_t height) override;

  void SetEnabled(bool enabled) override;
  // Alt with one of the keys gives the widget the focus and reports the key.
  void SetAccessKeys(const std::string& keys) override;
  lumo::WindowHandle hWnd() const override;

  QWidget* widget() const { return widget_; }
  // False while a form designer shows the control.
  void setUserMode(bool userMode) { userMode_ = userMode; }
  // The combo: the container (a layout, an item view) gives the width, the control only
  // fixes its height.
  void setWidthFromContainer(bool fromContainer) { widthFromContainer_ = fromContainer; }
  const QString& accessKeys() const { return accessKeys_; }

  static lumo::StdFont toStdFont(const QFont& font);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void propertyChanged(const QString& name);
  void accessKeyPressed(const QString& key);

 private:
  void ClearShortcuts();
  void FocusChanged(QWidget* old, QWidget* now);
  bool Holds(const QWidget* focus) const;

  QPointer<QWidget> widget_;
  bool userMode_ = true;
  bool widthFromContainer_ = false;
  QString accessKeys_;
  std::vector<QPointer<QShortcut>> shortcuts_;
  std::function<void(const QString&)> changeHandler_;
};

}  // namespace LumoColorCombo::host
