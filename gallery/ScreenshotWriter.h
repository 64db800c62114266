#pragma once

#include <QDir>
#include <QString>

class GalleryWindow;

// Writes PNG screenshots of the gallery: each page, the combo's styles, focus and open
// drop-down, each palette, the honeycomb, the "More Colors" dialog, the sample box, the
// About box, and the pages again under a dark theme.
class ScreenshotWriter {
 public:
  ScreenshotWriter(GalleryWindow& window, const QString& folder);

  // Answers the number of files written; 0 means something went wrong.
  int writeAll();

 private:
  bool save(const QPixmap& picture, const QString& name);
  void settle() const;
  void writePages(const QString& suffix);
  void showTabOf(const QWidget* widget);
  void writeCombos();
  void writePalettes();
  void writeHoneycomb();
  void writeDialog();
  void writeSample();
  void writeAboutBox();

  GalleryWindow& window_;
  QDir folder_;
  int written_ = 0;
};
