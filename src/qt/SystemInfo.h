#pragma once

#include <QString>

class QWidget;

namespace LumoColorCombo::host {

// What a bug report about the controls needs, as plain text, one fact a line: the
// library and Qt versions, the application, the operating system, Qt's platform plugin,
// the style and every screen with its size and device pixel ratio.
class SystemInfo {
 public:
  // The style is the one `context` draws with (the application's without one).
  static QString text(const QWidget* context = nullptr);

 private:
  static QString screens();
};

}  // namespace LumoColorCombo::host
