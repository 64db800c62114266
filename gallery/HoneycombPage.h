#pragma once

#include <QWidget>

class GalleryWindow;
class QLabel;

namespace LumoColorCombo {
class ColorHexagon;
}

// The honeycomb and its dialog: the honeycomb live (a click or the arrow keys choose),
// what it holds now, a button that makes it automatic, and "More Colors..." that runs
// the dialog from the honeycomb's colour and hands the honeycomb what the dialog
// commits. Every event goes to the gallery's log.
class HoneycombPage : public QWidget {
  Q_OBJECT

 public:
  explicit HoneycombPage(GalleryWindow& gallery);

  LumoColorCombo::ColorHexagon* hexagon() const { return hexagon_; }

 private:
  void watch();
  void runDialog();
  void showState();

  GalleryWindow& gallery_;
  LumoColorCombo::ColorHexagon* hexagon_;
  QLabel* state_;
};
