#pragma once

#include <functional>

#include <QWidget>

class GalleryWindow;
class QGroupBox;
class QLabel;
class QListWidget;

namespace LumoColorCombo {
class ColorBox;
}

// The palette grid, one palette at a time. A shown grid takes the mouse, as the combo's
// drop-down needs (a press outside it cancels, and goes to the grid), and only one grid
// can hold the mouse: so the page has one live grid, a chooser that pictures all fifteen
// palettes, editors for the grid's properties and what it last chose. Every event the
// grid raises goes to the gallery's log under the palette's name.
class PalettesPage : public QWidget {
  Q_OBJECT

 public:
  explicit PalettesPage(GalleryWindow& gallery);

  LumoColorCombo::ColorBox* grid() const { return grid_; }
  QListWidget* chooser() const { return chooser_; }
  // Shows each palette in the grid in turn, then the one chosen before.
  void forEachPalette(const std::function<void(LumoColorCombo::ColorBox& grid, const QString& name)>& visit);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* buildChooser();
  void drawPictures();
  QWidget* buildGrid();
  QWidget* buildSide();
  void choose(int row);
  void watchGrid();
  void showChoice();
  QString paletteName() const;

  GalleryWindow& gallery_;
  LumoColorCombo::ColorBox* grid_ = nullptr;
  QGroupBox* gridFrame_ = nullptr;
  QLabel* choice_ = nullptr;
  QListWidget* chooser_ = nullptr;
};
