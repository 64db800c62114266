// What a screen reader gets from the controls, read through Qt's public accessibility
// API only: what the press action of a grid's or the honeycomb's items does, and the
// combo's value. (The items' names and the announcements of key moves need Qt's
// accessibility switched on, which the offscreen platform cannot: tests/x11.)
#include <QtTest>

#include <QAccessible>
#include <QAccessibleActionInterface>

#include <map>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::ColorCombo;
using LumoColorCombo::ColorHexagon;
using LumoColorCombo::OLE_COLOR;

namespace {

QString Hex(OLE_COLOR color) {
  // The colour text a reader gets: "#RRGGBB" with red first.
  const quint32 c = static_cast<quint32>(color);
  return QString("#%1%2%3")
      .arg(c & 0xFF, 2, 16, QChar('0'))
      .arg((c >> 8) & 0xFF, 2, 16, QChar('0'))
      .arg((c >> 16) & 0xFF, 2, 16, QChar('0'))
      .toUpper();
}

QAccessibleInterface* Grid(const QWidget& control) {
  return QAccessible::queryAccessibleInterface(control.findChild<LumoColorCombo::host::SurfaceWidget*>());
}

// The description of the one selected item, or "" unless exactly one is selected.
QString SelectedColour(QAccessibleInterface* list) {
  QStringList selected;
  for (int i = 0; i < list->childCount(); ++i) {
    if (list->child(i)->state().selected) selected << list->child(i)->text(QAccessible::Description);
  }
  return selected.size() == 1 ? selected.front() : QString();
}

void Press(QAccessibleInterface* item) {
  QVERIFY(item != nullptr && item->actionInterface() != nullptr);
  QVERIFY(item->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace

class AccessibilityTest : public QObject {
  Q_OBJECT

 private:
  // Each grid's published events, in order.
  std::map<const ColorBox*, QStringList> logs_;

  void Track(ColorBox& box) {
    QStringList& log = logs_[&box];
    log.clear();  // a box may reuse an earlier one's address
    connect(&box, &ColorBox::Click, this, [&log](OLE_COLOR& c, const QString& name, bool& automatic) {
      log << QString("Click %1 %2 %3").arg(Hex(c), name).arg(automatic);
    });
    connect(&box, &ColorBox::MoreColorClick, this, [&log] { log << "MoreColorClick"; });
    connect(&box, &ColorBox::UserCancel, this, [&log] { log << "UserCancel"; });
    connect(&box, &ColorBox::propertyChanged, this, [&log](const QString& name) { log << name; });
  }

  static void ShowFocused(QWidget& control) {
    control.show();
    control.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&control));
    control.setFocus();
    QVERIFY(control.focusWidget() != nullptr && control.focusWidget()->hasFocus());
  }

 private slots:
  // Pressing an item through the action interface is Enter on it: the same events in
  // the same order, and the same colour afterwards.
  void pressActionChoosesAsEnterDoes_data() {
    QTest::addColumn<int>("item");
    QTest::addRow("Automatic") << 0;
    QTest::addRow("first cell") << 1;
    QTest::addRow("fifth cell") << 5;
    QTest::addRow("More Colors") << -1;
  }
  void pressActionChoosesAsEnterDoes() {
    QFETCH(int, item);
    ColorBox byKeys;
    ColorBox byAction;
    for (ColorBox* box : {&byKeys, &byAction}) {
      box->setIsAutomatic(false);
      Track(*box);
    }
    ShowFocused(byKeys);
    QAccessibleInterface* keysGrid = Grid(byKeys);
    const int index = item < 0 ? keysGrid->childCount() - 1 : item;
    for (int moves = 0; !keysGrid->child(index)->state().focused && moves <= keysGrid->childCount(); ++moves) {
      QTest::keyClick(byKeys.surface(), Qt::Key_Right);
    }
    QVERIFY(keysGrid->child(index)->state().focused);
    logs_[&byKeys].clear();
    QTest::keyClick(byKeys.surface(), Qt::Key_Return);

    Press(Grid(byAction)->child(index));
    QVERIFY(!logs_[&byAction].isEmpty());
    QCOMPARE(logs_[&byAction], logs_[&byKeys]);
    QCOMPARE(byAction.Color(), byKeys.Color());
    QCOMPARE(byAction.IsAutomatic(), byKeys.IsAutomatic());
  }

  // Each honeycomb cell pressed through the action interface is clicked: its colour is
  // chosen, named in the cell's tooltip text, and carries the selection.
  void honeycombCellsPressLikeClicks() {
    ColorHexagon hexagon;
    ShowFocused(hexagon);
    QAccessibleInterface* honeycomb = Grid(hexagon);
    QCOMPARE(honeycomb->role(), QAccessible::List);
    QCOMPARE(honeycomb->text(QAccessible::Name), hexagon.accessibleName());
    QVERIFY(honeycomb->childCount() > 0);
    QStringList clicked;
    connect(&hexagon, &ColorHexagon::ColorClick, this, [&clicked](OLE_COLOR color) { clicked << Hex(color); });
    for (int i = 0; i < honeycomb->childCount(); ++i) {
      QAccessibleInterface* cell = honeycomb->child(i);
      Press(cell);
      QCOMPARE(clicked.value(i), cell->text(QAccessible::Description));
      QVERIFY(cell->text(QAccessible::Name).endsWith(QString("(%1)").arg(Hex(hexagon.Color()))));
      // A colour the honeycomb holds twice is marked on its first cell.
      QCOMPARE(SelectedColour(honeycomb), clicked.value(i));
    }
    QCOMPARE(clicked.size(), honeycomb->childCount());
  }

  // The combo reads as a combo box whose value is the automatic text while IsAutomatic,
  // else its colour.
  void comboValueIsItsAutomaticTextOrColour_data() {
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<OLE_COLOR>("color");
    QTest::addRow("automatic") << true << OLE_COLOR(0x123456);
    QTest::addRow("a colour") << false << OLE_COLOR(0x00FF80);
  }
  void comboValueIsItsAutomaticTextOrColour() {
    QFETCH(bool, automatic);
    QFETCH(OLE_COLOR, color);
    ColorCombo combo;
    combo.setAutomaticText("Theme default");
    combo.setColor(color);
    combo.setIsAutomatic(automatic);
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&combo);
    QCOMPARE(field->role(), QAccessible::ComboBox);
    QCOMPARE(field->text(QAccessible::Name), combo.accessibleName());
    QCOMPARE(field->text(QAccessible::Value), automatic ? combo.AutomaticText() : Hex(color));
    QCOMPARE(field->text(QAccessible::Description), Hex(color));
  }
};

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
