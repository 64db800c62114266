#pragma once

#include <QList>
#include <QMainWindow>
#include <QVariantList>

#include "qt/LumoColorCombo.h"

class EventLog;
class QTabWidget;
class QLabel;

namespace LumoColorCombo {
class ColorBox;
class ColorHexagon;
}  // namespace LumoColorCombo

// The demo: every palette of the grid, the honeycomb with its "More Colors" dialog, an
// event log of everything the controls raise, and editors for their properties.
class GalleryWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit GalleryWindow(QWidget* parent = nullptr);

  QTabWidget* tabs() const { return tabs_; }
  const QList<LumoColorCombo::ColorBox*>& paletteBoxes() const { return boxes_; }
  LumoColorCombo::ColorHexagon* hexagon() const { return hexagon_; }
  EventLog* log() const { return log_; }

  void setDarkTheme(bool dark);
  // Runs the "More Colors" dialog from the given state and logs its result record.
  QVariantList runMoreColors(const QString& source, LumoColorCombo::OLE_COLOR current, bool isAutomatic);

 private:
  QWidget* buildPalettesPage();
  QWidget* buildHoneycombPage();
  void buildLogDock();
  void buildToolBar();
  void watch(LumoColorCombo::ColorBox* box, const QString& name);
  void watch(LumoColorCombo::ColorHexagon* hexagon);
  void showHexagonState();

  QTabWidget* tabs_;
  EventLog* log_;
  QList<LumoColorCombo::ColorBox*> boxes_;
  LumoColorCombo::ColorHexagon* hexagon_ = nullptr;
  QLabel* hexagonState_ = nullptr;
};
