#pragma once

#include <QMainWindow>
#include <QVariantList>

#include <LumoColorCombo/LumoColorCombo.h>

class EventLog;
class QTabWidget;

// The demo: a page per control, each in its own files (the combos, the palette grid,
// the honeycomb with its "More Colors" dialog, the sample), an event log of everything
// the controls raise, and a dark-theme switch.
class GalleryWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit GalleryWindow(QWidget* parent = nullptr);

  QTabWidget* tabs() const { return tabs_; }
  EventLog* log() const { return log_; }

  void setDarkTheme(bool dark);
  // Runs the "More Colors" dialog from the given state and logs its result record.
  QVariantList runMoreColors(const QString& source, LumoColorCombo::OLE_COLOR current, bool isAutomatic);
  // Colours in the log read red first, the way people write them: "#FF8000".
  static QString rgbText(LumoColorCombo::OLE_COLOR color);

 private:
  void buildLogDock();
  void buildToolBar();

  QTabWidget* tabs_;
  EventLog* log_;
};
