#pragma once

#include <functional>

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

namespace LumoColorCombo::host {

// Gives a window the first look at every key pressed in it, before the focused child
// sees it (the platform's KeyPreview). The look answers true to swallow the key.
//
// Qt delivers a key to the focused widget and then to each parent in turn while the key
// is ignored, running application event filters at every step. To look exactly once per
// key, the filter delivers the key itself on its first sighting and tells Qt it was
// handled; the nested delivery runs Qt's normal propagation.
class KeyPreview : public QObject {
  Q_OBJECT

 public:
  using Look = std::function<bool(QKeyEvent&)>;

  KeyPreview(QWidget& window, Look look);
  ~KeyPreview() override;

  // Watches only while the window is shown.
  void setActive(bool active);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsInWindow(QObject* object) const;

  QPointer<QWidget> window_;
  Look look_;
  bool active_ = false;
  bool delivering_ = false;
};

}  // namespace LumoColorCombo::host
