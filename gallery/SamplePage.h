#pragma once

#include <functional>

#include <QWidget>

#include <LumoColorCombo/LumoColorCombo.h>

class EventLog;
class QComboBox;
class QFontComboBox;
class QLineEdit;
class QSpinBox;

namespace LumoColorCombo {
class ColorSample;
}

// The sample box at work: a text colour and a background picked in two grids beside
// it, editors for its other properties, and the library's About box. The container's
// change notices go to the event log.
class SamplePage : public QWidget {
  Q_OBJECT

 public:
  explicit SamplePage(EventLog* log, QWidget* parent = nullptr);

  LumoColorCombo::ColorSample* sample() const { return sample_; }

 private:
  QWidget* buildPickers();
  QWidget* buildSettings();
  // A grid whose picks go to the sample through `apply`; its Automatic gives `automatic`.
  QWidget* addPicker(const QString& name, LumoColorCombo::OLE_COLOR automatic, LumoColorCombo::OLE_COLOR initial,
                     const std::function<void(LumoColorCombo::OLE_COLOR)>& apply);
  void applyFont();

  EventLog* log_;
  LumoColorCombo::ColorSample* sample_;
  QLineEdit* text_ = nullptr;
  QComboBox* border_ = nullptr;
  QFontComboBox* family_ = nullptr;
  QSpinBox* size_ = nullptr;
};
