// What a screen reader is told as the arrow keys move through a control, with Qt's
// accessibility on (screen_reader_bus.sh): every move is announced on the item it
// reaches, and the items read as the control shows them. Through Qt's public
// accessibility API only; installUpdateHandler catches what would go to the bus.
#include <QtTest>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QToolTip>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include "ShownForms.h"
#include "WhenReady.h"

using namespace LumoColorCombo;

namespace {

QList<QPair<QAccessible::Event, int>> heard;  // the surface's announcements: type, item

void Hear(QAccessibleEvent* event) {
  if (qobject_cast<host::SurfaceWidget*>(event->object()) != nullptr) heard.append({event->type(), event->child()});
}

// The item of the one announcement of `type` since `heard` was cleared, else -2.
int Announced(QAccessible::Event type = QAccessible::Focus) {
  QList<int> items;
  for (const auto& [t, item] : heard) {
    if (t == type) items << item;
  }
  return items.size() == 1 ? items.front() : -2;
}

// The tooltip the surface gives when Qt asks for it at the item.
QString ToolTipAt(QWidget* surface, QAccessibleInterface* item) {
  QHelpEvent ask(QEvent::ToolTip, surface->mapFromGlobal(item->rect().center()), item->rect().center());
  QApplication::sendEvent(surface, &ask);
  QToolTip::hideText();
  return surface->toolTip();
}

host::SurfaceWidget* DropdownGrid() {
  host::QtFormWindow* form = ShownForms::Find("frmDropdown");
  return form != nullptr ? form->children().findSurface(QStringLiteral("ColorBox1")) : nullptr;
}

// The surface's list, once its control is shown with the keyboard.
QAccessibleInterface* ShowFocused(QWidget& control, QWidget* surface) {
  control.show();
  control.activateWindow();
  if (!QTest::qWaitForWindowActive(&control)) return nullptr;
  control.setFocus();
  return QAccessible::queryAccessibleInterface(surface);
}

}  // namespace

class AccessibilityAnnounceTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    // Qt's bridge turns accessibility on once it has found the AT-SPI bus.
    QTRY_VERIFY(QAccessible::isActive());
    QAccessible::installUpdateHandler(&Hear);
  }

  // Every palette, with and without its buttons: Right walks the Automatic button, each
  // cell and the More Colors button, each move announced on the item it reaches, which
  // is focused, found at its place and named as the control shows it (cells by their
  // tooltips, buttons by their captions).
  void walkingAPaletteAnnouncesEachItemInOrder_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("buttons");
    const QMetaEnum styles = QMetaEnum::fromType<ComboPickStyles>();
    for (int i = 0; i < styles.keyCount(); ++i) {
      QTest::addRow("%s", styles.key(i)) << styles.value(i) << true;
      QTest::addRow("%s without buttons", styles.key(i)) << styles.value(i) << false;
    }
  }
  void walkingAPaletteAnnouncesEachItemInOrder() {
    QFETCH(int, style);
    QFETCH(bool, buttons);
    ColorBox box;
    box.setPickStyle(static_cast<ComboPickStyles>(style));
    box.setAllowAutomatic(buttons);
    box.setAllowMoreColors(buttons);
    QAccessibleInterface* grid = ShowFocused(box, box.surface());
    QVERIFY(grid != nullptr && grid->role() == QAccessible::List);
    QCOMPARE(grid->text(QAccessible::Name), box.accessibleName());
    const int count = grid->childCount();
    QVERIFY(count > (buttons ? 2 : 0));
    for (int step = 1; step <= count; ++step) {  // from Automatic round to it again
      heard.clear();
      QTest::keyClick(box.surface(), Qt::Key_Right);
      const int index = buttons ? step % count : step - 1;
      QCOMPARE(Announced(), index);
      QAccessibleInterface* item = grid->child(index);
      QVERIFY(item->state().focused);
      QCOMPARE(grid->childAt(item->rect().center().x(), item->rect().center().y()), item);
      const bool automatic = buttons && index == 0;
      const bool moreColors = buttons && index == count - 1;
      QCOMPARE(item->role(), automatic || moreColors ? QAccessible::PushButton : QAccessible::ListItem);
      QCOMPARE(item->text(QAccessible::Name), automatic    ? box.AutomaticText()
                                              : moreColors ? box.MoreColorsText()
                                                           : ToolTipAt(box.surface(), item));
    }
  }

  // The honeycomb's arrow keys move its selection: each move is announced as focus and
  // selection on the cell of the control's new colour, named by its colour text; pressing
  // a cell clicks it.
  void honeycombAnnouncesItsSelectedCell() {
    ColorHexagon hexagon;
    hexagon.setIsAutomatic(false);
    QAccessibleInterface* honeycomb = ShowFocused(hexagon, hexagon.surface());
    QVERIFY(honeycomb != nullptr);
    QCOMPARE(honeycomb->text(QAccessible::Name), hexagon.accessibleName());
    QStringList clicks;
    connect(&hexagon, &ColorHexagon::ColorClick, this, [&clicks](OLE_COLOR, const QString& name) { clicks << name; });
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
      heard.clear();
      QTest::keyClick(hexagon.surface(), key);
      QAccessibleInterface* cell = honeycomb->child(Announced());
      QVERIFY(cell != nullptr && cell->state().selected && cell->state().focused);
      QCOMPARE(Announced(QAccessible::Selection), honeycomb->indexOfChild(cell));
      const OLE_COLOR c = hexagon.Color();
      const QString hex = QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF).name();
      QCOMPARE(cell->text(QAccessible::Description).toLower(), hex);
      QVERIFY(cell->text(QAccessible::Name).toLower().endsWith("(" + hex + ")"));
    }
    QAccessibleInterface* first = honeycomb->child(0);
    first->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicks.size(), 1);
    QVERIFY(first->state().selected);
  }

  // The combo's drop-down grid is a list like any grid: a key move in it is announced,
  // and pressing the announced cell picks it, after which the combo's value names it.
  void comboDropDownAnnouncesAndPicksTheCellRead() {
    ColorCombo combo;
    QVERIFY(ShowFocused(combo, &combo) != nullptr);
    QString announced;
    const WhenReady inDropdown([] { return DropdownGrid() != nullptr; },
                               [&announced] {
                                 QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(DropdownGrid());
                                 heard.clear();
                                 QTest::keyClick(DropdownGrid(), Qt::Key_Right);
                                 QAccessibleInterface* cell = grid->child(Announced());
                                 if (cell == nullptr || cell->role() != QAccessible::ListItem) {
                                   QTest::keyClick(DropdownGrid(), Qt::Key_Escape);  // the test fails below
                                   return;
                                 }
                                 announced = cell->text(QAccessible::Name);
                                 cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
                               });
    QTest::keyClick(combo.surface(), Qt::Key_F4);
    QTRY_VERIFY(DropdownGrid() == nullptr);
    QVERIFY(!announced.isEmpty());
    QCOMPARE(QAccessible::queryAccessibleInterface(&combo)->text(QAccessible::Value), announced);
  }
};

QTEST_MAIN(AccessibilityAnnounceTest)
#include "accessibility_announce_test.moc"
