// Real, shown ColorBox and ColorHexagon widgets driven with QTest input and through Qt's
// public accessibility API: the input reaches the grid, what the core raises comes out
// as the widget's signals, and the widget keeps its content size and the palette.
// (Names and the announcements of key moves need Qt's accessibility on: tests/x11.)
#include <QtTest>

#include <QAccessible>
#include <QAccessibleActionInterface>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include "qt/QtLabel.h"
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo;

namespace {

// Points of the default layouts: cells of the ColorBox grid (cpsStandard below the
// Automatic button), and the second cell of the honeycomb's top row, whose outline
// starts at (72, 4), 18 wide, with flat sides down to y = 14.
const QPoint kBlack(10, 28), kWhite(28, 28), kRed(100, 46), kMoreColors(73, 66), kHexCell(81, 9);

// The colour text a reader gets: "#RRGGBB".
QString Hex(OLE_COLOR c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF).name().toUpper(); }

// Records the box's events in the order they arrive; with `properties`, its property
// change notices too.
void Track(ColorBox& box, QStringList& log, bool properties = false) {
  QObject::connect(&box, &ColorBox::OverColor, [&log](OLE_COLOR c, bool automatic) {
    log << QString("OverColor %1 %2").arg(Hex(c)).arg(automatic);
  });
  QObject::connect(&box, &ColorBox::Click, [&log](OLE_COLOR& c, const QString& name, bool& automatic) {
    log << QString("Click %1 %2 %3").arg(Hex(c), name).arg(automatic);
  });
  QObject::connect(&box, &ColorBox::MoreColorClick, [&log] { log << "MoreColorClick"; });
  QObject::connect(&box, &ColorBox::UserCancel, [&log] { log << "UserCancel"; });
  if (properties) QObject::connect(&box, &ColorBox::propertyChanged, [&log](const QString& name) { log << name; });
}

void ShowActive(QWidget& widget) {
  widget.show();
  widget.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&widget));
}

}  // namespace

class PickerWidgetsTest : public QObject {
  Q_OBJECT

 private slots:
  // Moves over two cells, a click on a third and one on More Colors, from a corner off
  // every cell: hover tracking sees only moves.
  void inputOnTheBoxRaisesItsSignals() {
    QStringList log;  // outlives the box, which may still report while it goes
    ColorBox box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Track(box, log);
    QTest::mouseMove(box.surface(), QPoint(0, 0));
    for (const QPoint& at : {kBlack, kWhite}) QTest::mouseMove(box.surface(), at);
    for (const QPoint& at : {kRed, kMoreColors}) QTest::mouseClick(box.surface(), Qt::LeftButton, {}, at);
    QTRY_COMPARE(log, (QStringList{"OverColor #000000 0", "OverColor #FFFFFF 0", "Click #FF0000 Red 0",
                                   "MoreColorClick"}));
  }

  // The press lands elsewhere in the window and reaches the grid through its grab; the
  // release outside is a cancel of its own.
  void aPressOutsideTheBoxCancels() {
    QStringList log;
    QWidget window;
    window.resize(400, 300);
    auto* box = new ColorBox(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(QWidget::mouseGrabber(), box->surface());
    Track(*box, log);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 250));
    QCOMPARE(log, QStringList{"UserCancel"});
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 250));
    QCOMPARE(log, (QStringList{"UserCancel", "UserCancel"}));
  }

  // The hexagon shows the hovered colour's text below the honeycomb; a click turns
  // automatic off, then reports the click.
  void hexagonShowsTheHoveredColourAndReportsTheClick() {
    QStringList log;
    ColorHexagon hexagon;
    hexagon.resize(600, 600);  // the control snaps back
    QCOMPARE(hexagon.width(), 239);
    QCOMPARE(hexagon.overColorLabel()->y(), 249);
    QCOMPARE(hexagon.height(), 249 + hexagon.overColorLabel()->height());
    hexagon.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hexagon));
    connect(&hexagon, &ColorHexagon::IsAutomaticChanged, this,
            [&log](bool value) { log << QString("IsAutomaticChanged %1").arg(value); });
    connect(&hexagon, &ColorHexagon::ColorClick, this, [&log](OLE_COLOR c, const QString& name, qint16 button) {
      log << QString("ColorClick %1 %2 %3").arg(Hex(c), name).arg(button);
    });
    QSignalSpy over(&hexagon, &ColorHexagon::ColorOver);
    QTest::mouseMove(hexagon.surface(), kHexCell);
    QTRY_COMPARE(over.count(), 1);
    QCOMPARE(over.at(0).at(1).toString(), QString("Hex={33,66,99}"));
    QCOMPARE(hexagon.overColorLabel()->text(), QString("Hex={33,66,99}"));
    QVERIFY(hexagon.overColorLabel()->isVisible());
    QTest::mouseClick(hexagon.surface(), Qt::LeftButton, {}, kHexCell);
    QCOMPARE(log, QStringList({"IsAutomaticChanged 0", "ColorClick #336699 Hex={33,66,99} 1"}));
    QCOMPARE(Hex(hexagon.Color()), QString("#336699"));
  }

  void boxKeepsItsContentSizeAndPaintsInItsPalette() {
    ColorBox box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QSize content = box.size();
    QCOMPARE(content, box.surface()->size());
    box.resize(400, 300);
    QCOMPARE(box.size(), content);
    const QColor dark(0x30, 0x30, 0x30);
    const QImage& image = box.surface()->image();
    QVERIFY(image.pixelColor(0, 0) != dark);
    QPalette palette = box.palette();
    palette.setColor(QPalette::Button, dark);  // the grid's ButtonFace
    box.setPalette(palette);
    QCOMPARE(image.pixelColor(0, 0), dark);
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), dark);
  }

  // Pressing a grid item through the action interface is Enter on it: the same events
  // in the same order, and the same colour afterwards.
  void pressActionChoosesAsEnterDoes() {
    QStringList logs[2];
    ColorBox byKeys;
    ColorBox byAction;
    Track(byKeys, logs[0], true);
    Track(byAction, logs[1], true);
    for (ColorBox* box : {&byKeys, &byAction}) box->setIsAutomatic(false);
    ShowActive(byKeys);
    byKeys.setFocus();
    QAccessibleInterface* keysGrid = QAccessible::queryAccessibleInterface(byKeys.surface());
    const int firstCell = 1;  // after Automatic
    for (int moves = 0; !keysGrid->child(firstCell)->state().focused && moves <= keysGrid->childCount(); ++moves) {
      QTest::keyClick(byKeys.surface(), Qt::Key_Right);
    }
    QVERIFY(keysGrid->child(firstCell)->state().focused);
    logs[0].clear();
    QTest::keyClick(byKeys.surface(), Qt::Key_Return);

    QAccessibleInterface* pressed = QAccessible::queryAccessibleInterface(byAction.surface())->child(firstCell);
    QVERIFY(pressed->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    pressed->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!logs[1].isEmpty());
    QCOMPARE(logs[1], logs[0]);
    QCOMPARE(byAction.Color(), byKeys.Color());
    QCOMPARE(byAction.IsAutomatic(), byKeys.IsAutomatic());
  }

  // The combo is a combo box whose value is the automatic text while IsAutomatic, else
  // (with no pick to name it) its colour text.
  void comboValueIsItsAutomaticTextOrColour_data() {
    QTest::addColumn<bool>("automatic");
    QTest::addRow("automatic") << true;
    QTest::addRow("a colour") << false;
  }
  void comboValueIsItsAutomaticTextOrColour() {
    QFETCH(bool, automatic);
    ColorCombo combo;
    combo.setAutomaticText("Theme default");
    combo.setColor(0x00FF80);
    combo.setIsAutomatic(automatic);
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&combo);
    QCOMPARE(field->role(), QAccessible::ComboBox);
    QCOMPARE(field->text(QAccessible::Value), automatic ? combo.AutomaticText() : Hex(combo.Color()));
    QCOMPARE(field->text(QAccessible::Description), Hex(combo.Color()));
  }
};

QTEST_MAIN(PickerWidgetsTest)
#include "picker_widgets_test.moc"
