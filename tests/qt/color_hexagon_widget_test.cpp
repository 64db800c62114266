// End to end: a real ColorHexagon widget driven with QTest mouse and key events.
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include "colormodel/TypeLibrary.h"
#include "qt/ColorHexagon.h"
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorHexagon;

namespace {

// The first cell of the top row: its outline starts at (54, 4), it is 18 wide and its
// flat sides run down to y = 14; colour 003366 (red 00, green 33, blue 66).
const QPoint kFirstCellCentre(63, 9);
const QColor kFirstCellColour(0x00, 0x33, 0x66);
// Its right-hand neighbour, one 18-pixel pitch further.
const QPoint kSecondCellCentre(81, 9);
const LumoColorCombo::OLE_COLOR kSecondCellColour = 0x996633;  // 336699 red-first

QStringList SignalNames(const QMetaObject& meta) {
  QStringList names;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    if (meta.method(i).methodType() == QMetaMethod::Signal) names << QString(meta.method(i).name());
  }
  return names;
}

}  // namespace

class ColorHexagonWidgetTest : public QObject {
  Q_OBJECT

 private:
  // Records the widget's events in the order they arrive.
  QStringList log_;
  void Track(ColorHexagon& hexagon) {
    log_.clear();
    connect(&hexagon, &ColorHexagon::ColorChanged, this,
            [this](LumoColorCombo::OLE_COLOR c, const QString& name) { log_ << QString("ColorChanged %1 %2").arg(c, 6, 16, QChar('0')).arg(name); });
    connect(&hexagon, &ColorHexagon::IsAutomaticChanged, this,
            [this](bool value) { log_ << QString("IsAutomaticChanged %1").arg(value); });
    connect(&hexagon, &ColorHexagon::ColorClick, this,
            [this](LumoColorCombo::OLE_COLOR c, const QString& name, qint16 button) {
              log_ << QString("ColorClick %1 %2 %3").arg(c, 6, 16, QChar('0')).arg(name).arg(button);
            });
  }

 private slots:
  void publishesTheEventsInOrder() {
    const auto& published = lumo::TypeLibrary::Control("ColorHexagon");
    QStringList expected;
    for (const auto& event : published.Events) expected << QString::fromStdString(event.Name);
    QCOMPARE(SignalNames(ColorHexagon::staticMetaObject), expected);
  }

  void sizesItselfToTheHoneycombAndCaption() {
    ColorHexagon hexagon;
    hexagon.resize(600, 600);  // the control snaps back
    QCOMPARE(hexagon.width(), 239);
    QVERIFY(hexagon.height() >= 249);
  }

  void clickingACellReportsAutomaticOffThenTheClick() {
    ColorHexagon hexagon;
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    Track(hexagon);
    QTest::mouseClick(hexagon.surface(), Qt::LeftButton, {}, kSecondCellCentre);
    QCOMPARE(log_, QStringList({"IsAutomaticChanged 0", "ColorClick 996633 Hex={33,66,99} 1"}));
    QCOMPARE(hexagon.Color(), kSecondCellColour);
    QVERIFY(!hexagon.IsAutomatic());
  }

  void clickingANewColourWhenNotAutomaticReportsTheChangeFirst() {
    ColorHexagon hexagon;
    hexagon.setIsAutomatic(false);
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    Track(hexagon);
    QTest::mouseClick(hexagon.surface(), Qt::LeftButton, {}, kSecondCellCentre);
    QCOMPARE(log_, QStringList({"ColorChanged 996633 Hex={33,66,99}", "ColorClick 996633 Hex={33,66,99} 1"}));
  }

  void pressingOnOneCellAndReleasingOnAnotherChoosesNothing() {
    ColorHexagon hexagon;
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    Track(hexagon);
    QTest::mousePress(hexagon.surface(), Qt::LeftButton, {}, kFirstCellCentre);
    QTest::mouseRelease(hexagon.surface(), Qt::LeftButton, {}, kSecondCellCentre);
    QVERIFY(log_.isEmpty());
    QVERIFY(hexagon.IsAutomatic());
  }

  void arrowKeysMoveTheMarkAlongTheRow() {
    ColorHexagon hexagon;
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    hexagon.surface()->setFocus();
    QTest::mouseClick(hexagon.surface(), Qt::LeftButton, {}, kFirstCellCentre);
    Track(hexagon);
    QTest::keyClick(hexagon.surface(), Qt::Key_Right);
    QCOMPARE(log_.size(), 1);
    QVERIFY(log_[0].startsWith("ColorChanged 996633"));
    QCOMPARE(hexagon.Color(), kSecondCellColour);
    QTest::keyClick(hexagon.surface(), Qt::Key_Left);
    QCOMPARE(hexagon.Color(), 0x663300);
  }

  void paintsTheCellAndItsInvertedSelectionMark() {
    ColorHexagon hexagon;
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    const QImage before = hexagon.surface()->image();
    const qreal dpr = before.devicePixelRatio();
    const auto pixel = [dpr](const QImage& image, int x, int y) {
      return QColor(image.pixel(qRound(x * dpr), qRound(y * dpr)));
    };
    QCOMPARE(pixel(before, kFirstCellCentre.x(), kFirstCellCentre.y()), kFirstCellColour);
    QTest::mouseClick(hexagon.surface(), Qt::LeftButton, {}, kFirstCellCentre);
    const QImage after = hexagon.surface()->image();
    // The mark is drawn 3 pixels in from the left side, two pixels wide, in the
    // inverted colour; the middle of the cell keeps its colour.
    const QColor inverted(0xFF, 0xCC, 0x99);
    bool markFound = false;
    for (int x = 55; x <= 59; ++x) markFound = markFound || pixel(after, x, 9) == inverted;
    QVERIFY2(markFound, "no inverted mark inside the left side of the selected cell");
    QCOMPARE(pixel(after, kFirstCellCentre.x(), kFirstCellCentre.y()), kFirstCellColour);
  }

  void hoverShowsTheColourTextBelowTheHoneycomb() {
    ColorHexagon hexagon;
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    QSignalSpy over(&hexagon, &ColorHexagon::ColorOver);
    QTest::mouseMove(hexagon.surface(), kSecondCellCentre);
    QTRY_COMPARE(over.count(), 1);
    QCOMPARE(over.at(0).at(1).toString(), QString("Hex={33,66,99}"));
  }

  void persistedPropertiesRoundTrip() {
    ColorHexagon source;
    source.setIsAutomatic(false);
    source.setColor(0x0000FF);
    source.setAutomaticText("Auto");
    ColorHexagon copy;
    copy.readProperties(source.writeProperties());
    QCOMPARE(copy.IsAutomatic(), false);
    QCOMPARE(copy.Color(), 0x0000FF);
    QCOMPARE(copy.AutomaticText(), QString("Auto"));
    QVERIFY(ColorHexagon().writeProperties().isEmpty());  // defaults are not stored
  }
};

QTEST_MAIN(ColorHexagonWidgetTest)
#include "color_hexagon_widget_test.moc"
