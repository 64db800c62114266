// What a screen reader can do with the controls offscreen, through Qt's public
// accessibility API only: a grid item's press action, and the combo's value. (Names
// and the announcements of key moves need Qt's accessibility on: tests/x11.)
#include <QtTest>

#include <QAccessible>
#include <QAccessibleActionInterface>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::OLE_COLOR;

namespace {

// The colour text a reader gets: "#RRGGBB".
QString Hex(OLE_COLOR c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF).name().toUpper(); }

}  // namespace

class AccessibilityTest : public QObject {
  Q_OBJECT

 private slots:
  // Pressing a grid item through the action interface is Enter on it: the same events
  // in the same order, and the same colour afterwards.
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
    QStringList logs[2];
    for (int i : {0, 1}) {
      ColorBox& box = i == 0 ? byKeys : byAction;
      QStringList& log = logs[i];
      box.setIsAutomatic(false);
      connect(&box, &ColorBox::Click, this, [&log](OLE_COLOR& c, const QString& name, bool& automatic) {
        log << QString("Click %1 %2 %3").arg(Hex(c), name).arg(automatic);
      });
      connect(&box, &ColorBox::MoreColorClick, this, [&log] { log << "MoreColorClick"; });
      connect(&box, &ColorBox::UserCancel, this, [&log] { log << "UserCancel"; });
      connect(&box, &ColorBox::propertyChanged, this, [&log](const QString& name) { log << name; });
    }
    byKeys.show();
    byKeys.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&byKeys));
    byKeys.setFocus();
    QAccessibleInterface* keysGrid = QAccessible::queryAccessibleInterface(byKeys.surface());
    const int index = item < 0 ? keysGrid->childCount() - 1 : item;
    for (int moves = 0; !keysGrid->child(index)->state().focused && moves <= keysGrid->childCount(); ++moves) {
      QTest::keyClick(byKeys.surface(), Qt::Key_Right);
    }
    QVERIFY(keysGrid->child(index)->state().focused);
    logs[0].clear();
    QTest::keyClick(byKeys.surface(), Qt::Key_Return);

    QAccessibleInterface* pressed = QAccessible::queryAccessibleInterface(byAction.surface())->child(index);
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
    LumoColorCombo::ColorCombo combo;
    combo.setAutomaticText("Theme default");
    combo.setColor(0x00FF80);
    combo.setIsAutomatic(automatic);
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&combo);
    QCOMPARE(field->role(), QAccessible::ComboBox);
    QCOMPARE(field->text(QAccessible::Value), automatic ? combo.AutomaticText() : Hex(combo.Color()));
    QCOMPARE(field->text(QAccessible::Description), Hex(combo.Color()));
  }
};

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
