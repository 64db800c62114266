#pragma once

#include <functional>

#include <QList>
#include <QWidget>

#include <LumoColorCombo/LumoColorCombo.h>

class ComboPropertyEditor;
class EventLog;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QPixmap;

namespace LumoColorCombo {
class ColorCombo;
}

// The colour combo at work: one in each of the four styles and one with each opening
// effect, an editor for the properties of the one chosen (or last focused), and every
// Before/After event in the event log, with a switch that cancels each cancellable one
// so the cancel paths can be seen.
class ComboPage : public QWidget {
  Q_OBJECT

 public:
  explicit ComboPage(EventLog* log, QWidget* parent = nullptr);

  const QList<LumoColorCombo::ColorCombo*>& combos() const { return combos_; }
  void setCancelEverything(bool cancel);

  using Saver = std::function<bool(const QPixmap& picture, const QString& name)>;
  // The page's screenshots: combo-<style> for each style, combo-focused and
  // combo-dropdown (the open drop-down under its combo). Answers how many were saved.
  int writeScreenshots(const Saver& save);

 private:
  QWidget* buildCombos();
  QWidget* buildSettings();
  LumoColorCombo::ColorCombo* addCombo(QGridLayout* grid, int row, const QString& name, const QString& what);
  void watch(LumoColorCombo::ColorCombo* combo);
  void edit(LumoColorCombo::ColorCombo* combo);
  bool saveOpenDropdown(LumoColorCombo::ColorCombo* combo, const Saver& save);

  EventLog* log_;
  QList<LumoColorCombo::ColorCombo*> combos_;
  QCheckBox* cancelAll_ = nullptr;
  QComboBox* chooser_ = nullptr;
  ComboPropertyEditor* editor_ = nullptr;
};
