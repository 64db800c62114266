// The drawing surface on a 2x screen: geometry stays in logical pixels, each logical
// pixel becomes a sharp 2x2 block, and the pixel rules hold per logical pixel.
#include <QApplication>
#include <QTest>

#include "qt/SurfaceWidget.h"

using LumoColorCombo::host::SurfaceWidget;

namespace {

constexpr lumo::OLE_COLOR kBack = lumo::RGB(255, 255, 255);
constexpr lumo::OLE_COLOR kPen = lumo::RGB(200, 0, 0);

// The colour of a logical pixel, checking that its whole 2x2 block agrees.
QColor Logical(const SurfaceWidget& surface, int x, int y) {
  const QImage& image = surface.image();
  const QColor color = image.pixelColor(2 * x, 2 * y);
  for (auto [dx, dy] : {std::pair{1, 0}, {0, 1}, {1, 1}}) {
    if (image.pixelColor(2 * x + dx, 2 * y + dy) != color) return QColor();
  }
  return color;
}

}  // namespace

class SurfaceHiDpiTest : public QObject {
  Q_OBJECT

 private slots:
  void pixelRulesHoldPerLogicalPixel() {
    SurfaceWidget surface;
    surface.resize(50, 20);
    QCOMPARE(surface.ScaleWidth(), 50);
    QCOMPARE(surface.image().size(), QSize(100, 40));
    QCOMPARE(surface.image().devicePixelRatio(), 2.0);
    surface.SetBackColor(kBack);
    surface.SetForeColor(kPen);
    surface.Rectangle(2, 2, 10, 8);
    surface.MoveToEx(20, 2);
    surface.LineTo(30, 12);
    // The rectangle's ring without its right and bottom edge, and the line without its end.
    const QColor pen(200, 0, 0), back(Qt::white);
    const std::pair<QPoint, QColor> expected[] = {{{2, 2}, pen},   {{9, 7}, pen},    {{10, 7}, back}, {{9, 8}, back},
                                                  {{5, 5}, back},  {{20, 2}, pen},   {{29, 11}, pen}, {{30, 12}, back}};
    for (const auto& [at, colour] : expected) QCOMPARE(Logical(surface, at.x(), at.y()), colour);

    const QImage before = surface.image().copy();
    surface.DrawFocusRect({1, 1, 15, 11});
    QVERIFY(surface.image() != before);
    surface.DrawFocusRect({1, 1, 15, 11});
    QCOMPARE(surface.image(), before);
  }
};

int main(int argc, char** argv) {
  // Must be set before the application starts; the offscreen screen then reports 2x.
  qputenv("QT_SCALE_FACTOR", "2");
  QApplication app(argc, argv);
  SurfaceHiDpiTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "surface_hidpi_test.moc"
