#pragma once

#include <vector>

#include <QObject>
#include <QPointer>
#include <QString>

#include "colormodel/ControlSite.h"

class QFont;
class QShortcut;
class QWidget;

namespace LumoColorCombo::host {

// The container side of a control, for any QWidget that hosts one: the widget's size in
// twips, its enabled state, the ambient properties of the form it sits on and the
// change notification, which the widget re-emits as its own signal. The site does not
// own the widget and is harmless once the widget is gone.
class QtControlSite : public QObject, public lumo::ControlSite {
  Q_OBJECT

 public:
  explicit QtControlSite(QWidget* widget, QObject* parent = nullptr);
  ~QtControlSite() override;

  void PropertyChanged(const std::string& name) override;

  // The font of the form the control sits on (the parent's font; the application's font
  // for a widget without a parent), not the control's own.
  lumo::StdFont AmbientFont() const override;
  bool AmbientUserMode() const override { return userMode_; }
  std::string AmbientDisplayName() const override;

  std::int32_t Width() const override;
  std::int32_t Height() const override;
  // The controls size themselves to their content: the widget gets exactly this size.
  void Size(std::int32_t width, std::int32_t height) override;

  void SetEnabled(bool enabled) override;
  // Alt with one of the keys gives the widget the focus and reports the key.
  void SetAccessKeys(const std::string& keys) override;
  lumo::WindowHandle hWnd() const override;

  QWidget* widget() const { return widget_; }
  // False while a form designer shows the control.
  void setUserMode(bool userMode) { userMode_ = userMode; }
  const QString& accessKeys() const { return accessKeys_; }

  static lumo::StdFont toStdFont(const QFont& font);

 signals:
  void propertyChanged(const QString& name);
  void accessKeyPressed(const QString& key);

 private:
  void ClearShortcuts();

  QPointer<QWidget> widget_;
  bool userMode_ = true;
  QString accessKeys_;
  std::vector<QPointer<QShortcut>> shortcuts_;
};

}  // namespace LumoColorCombo::host
