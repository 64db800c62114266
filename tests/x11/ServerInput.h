#pragma once

#include <QPoint>
#include <QProcess>
#include <QString>
#include <QStringList>

// Pointer and keys as a person's arrive: xdotool sends them through the X server's XTEST
// extension on the display the test runs on, so the window system's grabs, focus and
// stacking decide where each one goes (QTest's events would go straight to a widget).
// Each call returns once the X server has the input; the application then reads it from
// its connection, so a test waits for the outcome (QTRY_*).
namespace ServerInput {

inline bool Xdotool(const QStringList& arguments) {
  return QProcess::execute(QStringLiteral("xdotool"), arguments) == 0;
}

inline bool MoveTo(QPoint global) {
  return Xdotool({"mousemove", "--sync", QString::number(global.x()), QString::number(global.y())});
}

inline bool Click(QPoint global) { return MoveTo(global) && Xdotool({"click", "1"}); }

// A key by its X keysym name: "Escape", "Return", "Right", "F4".
inline bool Key(const QString& keysym) { return Xdotool({"key", keysym}); }

}  // namespace ServerInput
