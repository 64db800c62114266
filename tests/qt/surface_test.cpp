// Pixel tests of the Qt drawing surface: each drawing call against its pixel rules,
// read back from the backing image, plus the input it forwards.
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <set>

#include "qt/SurfaceWidget.h"

using LumoColorCombo::host::SurfaceWidget;
using lumo::Point;

namespace {

constexpr lumo::OLE_COLOR kBack = lumo::RGB(255, 255, 255);
constexpr lumo::OLE_COLOR kPen = lumo::RGB(0, 0, 200);
constexpr lumo::OLE_COLOR kFill = lumo::RGB(0, 180, 0);

// Records what the surface forwards, one line per event.
class Recorder : public lumo::SurfaceEvents {
 public:
  QStringList events;
  bool swallowKeys = false;
  void MouseDown(std::int16_t b, std::int16_t s, double x, double y) override { add("MouseDown", b, s, x, y); }
  void MouseMove(std::int16_t b, std::int16_t s, double x, double y) override { add("MouseMove", b, s, x, y); }
  void MouseUp(std::int16_t b, std::int16_t s, double x, double y) override { add("MouseUp", b, s, x, y); }
  void DblClick() override { events << "DblClick"; }
  void KeyDown(std::int16_t& keyCode, std::int16_t shift) override {
    events << QString("KeyDown %1 %2").arg(keyCode).arg(shift);
    if (swallowKeys) keyCode = 0;
  }
  void GotFocus() override { events << "GotFocus"; }
  void LostFocus() override { events << "LostFocus"; }

 private:
  void add(const char* name, int button, int shift, double x, double y) {
    events << QString("%1 %2 %3 %4 %5").arg(name).arg(button).arg(shift).arg(x).arg(y);
  }
};

QColor Color(lumo::OLE_COLOR value) { return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF); }
QColor At(const SurfaceWidget& surface, int x, int y) { return surface.image().pixelColor(x, y); }

// The pixels of one colour, or (with `except`) of every other colour.
std::set<std::pair<int, int>> Pixels(const SurfaceWidget& surface, lumo::OLE_COLOR color, bool except = false) {
  std::set<std::pair<int, int>> found;
  for (int y = 0; y < surface.ScaleHeight(); ++y)
    for (int x = 0; x < surface.ScaleWidth(); ++x)
      if ((At(surface, x, y) == Color(color)) != except) found.insert({x, y});
  return found;
}

// The bounding box of everything that differs from the background.
QRect Ink(const SurfaceWidget& surface) {
  QRect box;
  for (const auto& [x, y] : Pixels(surface, kBack, true)) box |= QRect(x, y, 1, 1);
  return box;
}

// The colour of a logical pixel on a 2x surface, checking that its whole 2x2 block agrees.
QColor Logical(const SurfaceWidget& surface, int x, int y) {
  const QImage& image = surface.image();
  const QColor color = image.pixelColor(2 * x, 2 * y);
  for (auto [dx, dy] : {std::pair{1, 0}, {0, 1}, {1, 1}}) {
    if (image.pixelColor(2 * x + dx, 2 * y + dy) != color) return QColor();
  }
  return color;
}

}  // namespace

class SurfaceTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<SurfaceWidget> surface;
  Recorder recorder;

 private slots:
  void init() {
    surface = std::make_unique<SurfaceWidget>();
    surface->resize(120, 40);
    surface->SetBackColor(kBack);
    surface->SetForeColor(kPen);
    surface->SetFillColor(kFill);
    recorder = Recorder();
    surface->SetListener(&recorder);
  }
  void cleanup() { surface.reset(); }

  // On a 2x screen (CTest's qt_surface_test_2x runs this alone with QT_SCALE_FACTOR=2)
  // geometry stays in logical pixels, each logical pixel becomes a sharp 2x2 block, and
  // the rectangle, line and focus frame rules hold per logical pixel.
  void pixelRulesHoldPerLogicalPixelAt2x() {
    if (surface->image().devicePixelRatio() != 2.0) QSKIP("runs on a 2x screen only");
    QCOMPARE(surface->ScaleWidth(), 120);
    QCOMPARE(surface->image().size(), QSize(240, 80));
    surface->Rectangle(2, 2, 10, 8);
    surface->MoveToEx(20, 2);
    surface->LineTo(30, 12);
    // The rectangle's ring without its right and bottom edge, and the line without its end.
    const QColor pen = Color(kPen), back = Color(kBack);
    const std::pair<QPoint, QColor> expected[] = {{{2, 2}, pen},   {{9, 7}, pen},   {{10, 7}, back},
                                                  {{9, 8}, back},  {{5, 5}, back},  {{20, 2}, pen},
                                                  {{29, 11}, pen}, {{30, 12}, back}};
    for (const auto& [at, colour] : expected) QCOMPARE(Logical(*surface, at.x(), at.y()), colour);
    const QImage before = surface->image().copy();
    surface->DrawFocusRect({1, 1, 15, 11});
    QVERIFY(surface->image() != before);
    surface->DrawFocusRect({1, 1, 15, 11});
    QCOMPARE(surface->image(), before);
  }

  void rectangleLeavesOutRightAndBottom_data() {
    QTest::addColumn<QRect>("corners");  // left, top, right, bottom in x, y, width, height
    QTest::addColumn<int>("fillStyle");
    QTest::newRow("solid") << QRect(10, 5, 20, 15) << lumo::fill::Solid;
    QTest::newRow("transparent") << QRect(10, 5, 20, 15) << lumo::fill::Transparent;
    QTest::newRow("two by two") << QRect(3, 3, 5, 5) << lumo::fill::Solid;
    QTest::newRow("corners swapped") << QRect(20, 15, 10, 5) << lumo::fill::Solid;
  }
  void rectangleLeavesOutRightAndBottom() {
    QFETCH(QRect, corners);
    QFETCH(int, fillStyle);
    surface->SetFillStyle(fillStyle);
    surface->Rectangle(corners.x(), corners.y(), corners.width(), corners.height());
    const int l = std::min(corners.x(), corners.width()), r = std::max(corners.x(), corners.width());
    const int t = std::min(corners.y(), corners.height()), b = std::max(corners.y(), corners.height());
    for (int y = t - 1; y <= b; ++y) {
      for (int x = l - 1; x <= r; ++x) {
        const bool inside = x >= l && x < r && y >= t && y < b;
        const bool ring = inside && (x == l || x == r - 1 || y == t || y == b - 1);
        const QColor expected = ring ? Color(kPen) : inside && fillStyle == 0 ? Color(kFill) : Color(kBack);
        QVERIFY2(At(*surface, x, y) == expected, qPrintable(QString("pixel %1,%2").arg(x).arg(y)));
      }
    }
  }

  void lineToLeavesOutEndPointAndCoversTheSamePixelsBothWays_data() {
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::newRow("right") << QPoint(2, 3) << QPoint(12, 3);
    QTest::newRow("up") << QPoint(5, 20) << QPoint(5, 1);
    QTest::newRow("diagonal") << QPoint(1, 1) << QPoint(11, 11);
    QTest::newRow("shallow") << QPoint(2, 3) << QPoint(30, 10);
    QTest::newRow("ties every other step") << QPoint(0, 0) << QPoint(8, 4);
    QTest::newRow("steep ties") << QPoint(3, 0) << QPoint(7, 16);
    QTest::newRow("steep ties down to the left") << QPoint(7, 0) << QPoint(3, 16);
  }
  void lineToLeavesOutEndPointAndCoversTheSamePixelsBothWays() {
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    surface->MoveToEx(from.x(), from.y());
    surface->LineTo(to.x(), to.y());
    auto lit = Pixels(*surface, kPen);
    QVERIFY(lit.count({from.x(), from.y()}) && !lit.count({to.x(), to.y()}));
    const QPoint d = to - from;
    QCOMPARE(int(lit.size()), std::max(std::abs(d.x()), std::abs(d.y())));
    for (const auto& [x, y] : lit) {
      // Each pixel is the nearest to the ideal line along the minor axis.
      const bool xMajor = std::abs(d.x()) > std::abs(d.y());
      const double along = xMajor ? double(x - from.x()) / d.x() : double(y - from.y()) / d.y();
      const double offset = xMajor ? y - (from.y() + along * d.y()) : x - (from.x() + along * d.x());
      QVERIFY(std::abs(offset) <= 0.5);
    }
    surface->Cls();
    surface->MoveToEx(to.x(), to.y());
    surface->LineTo(from.x(), from.y());
    auto backward = Pixels(*surface, kPen);
    lit.insert({to.x(), to.y()});
    backward.insert({from.x(), from.y()});
    QVERIFY(lit == backward);
  }

  void polygonFillsAndOutlinesTheHexagon() {
    const std::vector<Point> hexagon{{54, 4}, {63, 0}, {71, 4}, {71, 14}, {64, 18}, {63, 18}, {54, 14}};
    surface->SetFillStyle(lumo::fill::Solid);
    surface->Polygon(hexagon);
    for (const Point& vertex : hexagon) QCOMPARE(At(*surface, vertex.X, vertex.Y), Color(kPen));
    QCOMPARE(Ink(*surface), QRect(QPoint(54, 0), QPoint(71, 18)));
    // The fill stays inside the outline on every row.
    for (int y = 0; y <= 18; ++y) {
      int first = 54, last = 71;
      while (At(*surface, first, y) == Color(kBack)) ++first;
      while (At(*surface, last, y) == Color(kBack)) --last;
      QVERIFY(At(*surface, first, y) == Color(kPen) && At(*surface, last, y) == Color(kPen));
    }
    // The selection mark: a two-pixel outline inside the hexagon, interior untouched.
    const lumo::OLE_COLOR mark = lumo::RGB(255, 0, 0);
    surface->SetForeColor(mark);
    surface->SetFillStyle(lumo::fill::Transparent);
    surface->SetDrawWidth(2);
    surface->Polygon({{57, 4}, {63, 2}, {69, 4}, {69, 14}, {64, 16}, {63, 16}, {57, 14}});
    QCOMPARE(Ink(*surface), QRect(QPoint(54, 0), QPoint(71, 18)));
    for (int x : {56, 57, 68, 69}) QCOMPARE(At(*surface, x, 9), Color(mark));
    for (int x : {55, 58, 67, 70}) QVERIFY(At(*surface, x, 9) != Color(mark));
    QCOMPARE(At(*surface, 62, 9), Color(kFill));
  }

  void drawEdgeRingsUseThePaletteBevel_data() {
    QTest::addColumn<int>("edge");
    QTest::addColumn<QList<QColor>>("rings");  // outer top-left, outer bottom-right, inner ...
    const QColor light(Qt::yellow), shadow(Qt::black), highlight(Qt::white), dark(Qt::darkGray), none;
    QTest::newRow("sunken outer") << 2 << QList<QColor>{dark, highlight, none, none};
    QTest::newRow("raised inner") << 4 << QList<QColor>{highlight, dark, none, none};
    QTest::newRow("raised") << 5 << QList<QColor>{light, shadow, highlight, dark};
    QTest::newRow("sunken") << 10 << QList<QColor>{dark, highlight, shadow, light};
  }
  void drawEdgeRingsUseThePaletteBevel() {
    QFETCH(int, edge);
    QFETCH(QList<QColor>, rings);
    QPalette palette = surface->palette();
    palette.setColor(QPalette::Midlight, Qt::yellow);  // 3-D light
    palette.setColor(QPalette::Shadow, Qt::black);     // 3-D dark shadow
    palette.setColor(QPalette::Light, Qt::white);      // button highlight
    palette.setColor(QPalette::Dark, Qt::darkGray);    // button shadow
    surface->setPalette(palette);
    surface->SetBackColor(lumo::RGB(0, 0, 255));
    surface->DrawEdge({10, 10, 30, 25}, edge, lumo::edge::AllSides);
    const auto expect = [&](int x, int y, QColor color) {
      const QColor want = color.isValid() ? color : QColor(Qt::blue);
      QVERIFY2(At(*surface, x, y) == want, qPrintable(QString("pixel %1,%2").arg(x).arg(y)));
    };
    for (auto [x, y] : {std::pair{10, 10}, {20, 10}, {10, 17}, {28, 10}}) expect(x, y, rings[0]);
    for (auto [x, y] : {std::pair{29, 10}, {29, 24}, {10, 24}, {20, 24}}) expect(x, y, rings[1]);
    for (auto [x, y] : {std::pair{11, 11}, {20, 11}, {11, 17}}) expect(x, y, rings[2]);
    for (auto [x, y] : {std::pair{28, 11}, {28, 23}, {11, 23}, {20, 23}}) expect(x, y, rings[3]);
    for (auto [x, y] : {std::pair{12, 12}, {30, 17}, {20, 25}, {9, 17}, {20, 9}}) expect(x, y, QColor());
  }

  void focusRectIsDottedAndUndoesItself_data() {
    QTest::addColumn<QRect>("corners");
    QTest::newRow("even origin") << QRect(4, 4, 20, 12);
    QTest::newRow("odd origin") << QRect(5, 4, 21, 13);
  }
  void focusRectIsDottedAndUndoesItself() {
    QFETCH(QRect, corners);
    const lumo::Rect rect{corners.x(), corners.y(), corners.width(), corners.height()};
    surface->SetFillStyle(lumo::fill::Solid);
    surface->Rectangle(0, 0, 40, 20);
    const QImage before = surface->image().copy();
    surface->DrawFocusRect(rect);
    for (int x = rect.Left; x < rect.Right; ++x) {
      QCOMPARE(At(*surface, x, rect.Top) != before.pixelColor(x, rect.Top), (x + rect.Top) % 2 == 0);
    }
    QCOMPARE(At(*surface, rect.Left + 3, rect.Top + 3), before.pixelColor(rect.Left + 3, rect.Top + 3));
    QCOMPARE(At(*surface, rect.Right, rect.Top), before.pixelColor(rect.Right, rect.Top));
    surface->DrawFocusRect(rect);
    QCOMPARE(surface->image(), before);
  }

  void drawTextAlignsAndClips_data() {
    QTest::addColumn<int>("format");
    QTest::addColumn<QRect>("corners");
    QTest::addColumn<QString>("text");
    QTest::newRow("left") << 0 << QRect(10, 5, 110, 35) << "Automatic";
    QTest::newRow("centred") << 1 << QRect(10, 5, 110, 35) << "Automatic";
    QTest::newRow("clipped") << 1 << QRect(40, 8, 60, 14) << "WWWWWWWWWWWWWWWW";
  }
  void drawTextAlignsAndClips() {
    QFETCH(int, format);
    QFETCH(QRect, corners);
    QFETCH(QString, text);
    surface->DrawTextA(text.toStdString(), {corners.x(), corners.y(), corners.width(), corners.height()}, format);
    const QRect ink = Ink(*surface);
    const QRect box(QPoint(corners.x(), corners.y()), QPoint(corners.width() - 1, corners.height() - 1));
    QVERIFY(!ink.isEmpty() && box.contains(ink));
    QVERIFY(ink.top() < box.top() + surface->TextHeight("A") / 2);  // the top line
    if (format == 0) QVERIFY(ink.left() <= box.left() + 2);
    if (format == 1) QVERIFY(std::abs((ink.left() + ink.right()) - (box.left() + box.right())) <= 2);
  }

  // Printed text starts at the current position, its glyphs in the font's size.
  void printDrawsAtTheCurrentPositionInTheFont_data() {
    QTest::addColumn<double>("points");
    QTest::newRow("9 pt") << 9.0;
    QTest::newRow("24 pt") << 24.0;
  }
  void printDrawsAtTheCurrentPositionInTheFont() {
    QFETCH(double, points);
    surface->resize(200, 60);
    surface->SetBackColor(kBack);
    lumo::StdFont font = surface->Font();
    font.Size = points;
    surface->SetFont(font);
    surface->SetCurrentX(20);
    surface->SetCurrentY(10);
    surface->Print("Sample");
    const QRect ink = Ink(*surface);  // the glyphs' own bearings aside
    QVERIFY2(qAbs(ink.left() - 20) <= 3 && ink.top() >= 10, qPrintable(QString::number(ink.left())));
    const double pixels = points * 96 / 72;
    QVERIFY2(ink.height() > 0.6 * pixels && ink.height() < 1.3 * pixels, qPrintable(QString::number(ink.height())));
  }

  void moveConvertsTwipsAndKeepsTheDrawing() {
    QWidget parent;
    auto* child = new SurfaceWidget(&parent);
    child->SetBackColor(kBack);
    child->Rectangle(0, 0, 5, 5);
    child->Move(150, 307, 3000, 1208);  // 20.47 and 80.53 pixels
    QCOMPARE(child->geometry(), QRect(10, 20, 200, 81));
    QCOMPARE(child->Width(), 3000);
    QCOMPARE(Ink(*child), QRect(0, 0, 5, 5));
  }

  void keysArriveAsVirtualKeyCodes_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << "KeyDown 13 0";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << "KeyDown 27 0";
    QTest::newRow("Q") << int(Qt::Key_Q) << 0 << "KeyDown 81 0";
    QTest::newRow("F4") << int(Qt::Key_F4) << 0 << "KeyDown 115 0";
    QTest::newRow("keypad 7") << int(Qt::Key_7) << int(Qt::KeypadModifier) << "KeyDown 103 0";
    QTest::newRow("Shift+Right") << int(Qt::Key_Right) << int(Qt::ShiftModifier) << "KeyDown 39 1";
    QTest::newRow("Ctrl+Alt+Home") << int(Qt::Key_Home) << int(Qt::ControlModifier | Qt::AltModifier)
                                   << "KeyDown 36 6";
  }
  void keysArriveAsVirtualKeyCodes() {
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, expected);
    QTest::keyClick(surface.get(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    // A modifier is a key of its own and comes first (Shift 16, Ctrl 17, Alt 18).
    const auto own = Qt::KeyboardModifiers(modifiers) & ~Qt::KeypadModifier;
    QCOMPARE(recorder.events.size(), 1 + qPopulationCount(uint(own.toInt())));
    QCOMPARE(recorder.events.last(), expected);
  }

  void tabMovesFocusUnlessSwallowed_data() {
    QTest::addColumn<bool>("swallow");
    QTest::newRow("passed on") << false;
    QTest::newRow("swallowed") << true;
  }
  void tabMovesFocusUnlessSwallowed() {
    QFETCH(bool, swallow);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* child = new SurfaceWidget;
    layout->addWidget(child);
    layout->addWidget(new QLineEdit);
    recorder.swallowKeys = swallow;
    child->SetListener(&recorder);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    child->setFocus();
    QTest::keyClick(child, Qt::Key_Tab);
    QCOMPARE(child->hasFocus(), swallow);
    QCOMPARE(recorder.events, QStringList({"GotFocus", "KeyDown 9 0"}) + (swallow ? QStringList() : QStringList{"LostFocus"}));
    child->SetListener(nullptr);
  }

  void mouseIsForwardedWithButtonAndShift_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("codes");
    QTest::newRow("left") << int(Qt::LeftButton) << int(Qt::NoModifier) << "1 0";
    QTest::newRow("right with Ctrl") << int(Qt::RightButton) << int(Qt::ControlModifier) << "2 2";
    QTest::newRow("middle with Alt") << int(Qt::MiddleButton) << int(Qt::AltModifier) << "4 4";
  }
  // A press, a move and a release, then a double click, which comes instead of the
  // second press.
  void mouseIsForwardedWithButtonAndShift() {
    QFETCH(int, button);
    QFETCH(int, modifiers);
    QFETCH(QString, codes);
    const auto qtButton = Qt::MouseButton(button);
    const auto qtModifiers = Qt::KeyboardModifiers(modifiers);
    QTest::mousePress(surface.get(), qtButton, qtModifiers, QPoint(13, 7));
    QTest::mouseMove(surface.get(), QPoint(20, 9));
    QTest::mouseRelease(surface.get(), qtButton, qtModifiers, QPoint(20, 9));
    QTest::mouseDClick(surface.get(), qtButton, qtModifiers, QPoint(20, 9));
    QTest::mouseRelease(surface.get(), qtButton, qtModifiers, QPoint(20, 9));
    const QString up = "MouseUp " + codes + " 20 9";
    QCOMPARE(recorder.events, (QStringList{"MouseDown " + codes + " 13 7", "MouseMove " + codes.left(1) + " 0 20 9",
                                           up, "DblClick", up}));
  }

  void captureEndsWithTheButtonRelease() {
    surface->show();
    QVERIFY(QTest::qWaitForWindowExposed(surface.get()));
    surface->grabMouse();
    QTest::mouseMove(surface.get(), QPoint(-5, 3));
    QCOMPARE(QWidget::mouseGrabber(), surface.get());  // moving keeps it
    QTest::mousePress(surface.get(), Qt::LeftButton, {}, QPoint(-5, 3));
    QTest::mouseRelease(surface.get(), Qt::LeftButton, {}, QPoint(-5, 3));
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QVERIFY(recorder.events.contains("MouseUp 1 0 -5 3"));
  }
};

QTEST_MAIN(SurfaceTest)
#include "surface_test.moc"
