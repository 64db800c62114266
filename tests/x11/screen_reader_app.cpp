// The window the screen-reader check reads: a grid for each palette, named after it,
// and the honeycomb. It writes the palettes' names, one a line, to the file its first
// argument names, so the check knows what to look for without a list of its own.
#include <QApplication>
#include <QFile>
#include <QGridLayout>
#include <QMetaEnum>
#include <QTextStream>
#include <QWidget>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorHexagon.h>

using LumoColorCombo::ColorBox;
using LumoColorCombo::ComboPickStyles;

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  app.setApplicationName(QStringLiteral("lumo-screen-reader-app"));
  if (argc < 2) return 2;
  QWidget window;
  window.setWindowTitle(QStringLiteral("Screen reader check"));
  auto* layout = new QGridLayout(&window);
  QFile names(QString::fromLocal8Bit(argv[1]));
  if (!names.open(QIODevice::WriteOnly | QIODevice::Text)) return 2;
  QTextStream out(&names);
  const QMetaEnum styles = QMetaEnum::fromType<ComboPickStyles>();
  for (int i = 0; i < styles.keyCount(); ++i) {
    auto* grid = new ColorBox(&window);
    grid->setPickStyle(static_cast<ComboPickStyles>(styles.value(i)));
    grid->setAccessibleName(QString::fromLatin1(styles.key(i)));
    layout->addWidget(grid, i / 5, i % 5);
    out << styles.key(i) << '\n';
  }
  out.flush();
  names.close();
  layout->addWidget(new LumoColorCombo::ColorHexagon(&window), 3, 0, 1, 5);
  window.show();
  window.activateWindow();
  return QApplication::exec();
}
