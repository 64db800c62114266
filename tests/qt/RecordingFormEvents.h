#pragma once

#include <functional>
#include <string>

#include <QRegularExpression>
#include <QStringList>

#include "colormodel/FormEvents.h"

// The core object behind a form, reduced to a log of what the window delivered, in
// order ("QueryUnload 0", "Unload", "Click cmdButton 1", "LostFocus txtColor",
// "KeyDown 115", "Activate"), with the answers a test scripts.
class RecordingFormEvents : public lumo::FormEvents {
 public:
  void Form_Activate() override { record(QStringLiteral("Activate")); }
  void Form_Deactivate() override { record(QStringLiteral("Deactivate")); }
  void Form_KeyDown(std::int16_t& keyCode, std::int16_t /*shift*/) override {
    record(QStringLiteral("KeyDown %1").arg(keyCode));
    if (swallowKeys) keyCode = 0;
  }
  void Form_QueryUnload(bool& cancel, std::int32_t unloadMode) override {
    record(QStringLiteral("QueryUnload %1").arg(unloadMode));
    cancel = cancelUnload;
  }
  void Form_Unload() override { record(QStringLiteral("Unload")); }
  void ControlClick(const std::string& control, std::int32_t index) override {
    record(QStringLiteral("Click %1 %2").arg(QString::fromStdString(control)).arg(index));
  }
  void ControlLostFocus(const std::string& control) override {
    record(QStringLiteral("LostFocus %1").arg(QString::fromStdString(control)));
  }

  // The entries that start with `prefix`, in order.
  QStringList only(const QString& prefix) const { return log.filter(QRegularExpression('^' + prefix)); }

  QStringList log;
  bool cancelUnload = false;
  bool swallowKeys = false;
  std::function<void(const QString&)> onRecord;

 private:
  void record(const QString& entry) {
    log << entry;
    if (onRecord) onRecord(entry);
  }
};
