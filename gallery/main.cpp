// The LumoColorCombo gallery. With --screenshots DIR it writes PNG pictures of every
// control to DIR and exits, which is how it runs on a machine without a display.
#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "GalleryWindow.h"
#include "ScreenshotWriter.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lumo-gallery"));

  QCommandLineParser options;
  options.setApplicationDescription(QStringLiteral("Every LumoColorCombo control, with an event log."));
  options.addHelpOption();
  const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                       QStringLiteral("Write PNG screenshots to <folder> and exit."),
                                       QStringLiteral("folder"));
  options.addOption(screenshots);
  options.process(app);

  GalleryWindow window;
  if (options.isSet(screenshots)) {
    ScreenshotWriter writer(window, options.value(screenshots));
    const int written = writer.writeAll();
    std::printf("%d screenshots written to %s\n", written, qPrintable(options.value(screenshots)));
    return written > 0 ? 0 : 1;
  }
  window.show();
  return QApplication::exec();
}
