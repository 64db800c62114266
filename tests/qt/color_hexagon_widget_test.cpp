// End to end: a real ColorHexagon widget driven with QTest mouse events.
#include <QSignalSpy>
#include <QtTest>

#include <LumoColorCombo/ColorHexagon.h>
#include "qt/QtLabel.h"
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorHexagon;

namespace {

// The second cell of the top row: its outline starts at (72, 4), it is 18 wide and its
// flat sides run down to y = 14.
const QPoint kSecondCellCentre(81, 9);
const LumoColorCombo::OLE_COLOR kSecondCellColour = 0x996633;  // 336699 red-first

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
  void sizesItselfToTheHoneycombAndCaption() {
    ColorHexagon hexagon;
    hexagon.resize(600, 600);  // the control snaps back
    QCOMPARE(hexagon.width(), 239);
    QCOMPARE(hexagon.overColorLabel()->y(), 249);  // the caption sits under the honeycomb
    QCOMPARE(hexagon.height(), 249 + hexagon.overColorLabel()->height());
  }

  void hoverShowsTheColourTextBelowAndAClickReportsAutomaticOffThenTheClick() {
    ColorHexagon hexagon;
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    Track(hexagon);
    QSignalSpy over(&hexagon, &ColorHexagon::ColorOver);
    QTest::mouseMove(hexagon.surface(), kSecondCellCentre);
    QTRY_COMPARE(over.count(), 1);
    QCOMPARE(over.at(0).at(1).toString(), QString("Hex={33,66,99}"));
    QCOMPARE(hexagon.overColorLabel()->text(), QString("Hex={33,66,99}"));
    QVERIFY(hexagon.overColorLabel()->isVisible());
    QTest::mouseClick(hexagon.surface(), Qt::LeftButton, {}, kSecondCellCentre);
    QCOMPARE(log_, QStringList({"IsAutomaticChanged 0", "ColorClick 996633 Hex={33,66,99} 1"}));
    QCOMPARE(hexagon.Color(), kSecondCellColour);
  }
};

QTEST_MAIN(ColorHexagonWidgetTest)
#include "color_hexagon_widget_test.moc"
