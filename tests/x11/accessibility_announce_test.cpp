// What a screen reader is told as the arrow keys move through a control: with Qt's
// accessibility on (screen_reader_bus.sh), every move is announced as a focus event
// on the item it reaches, and the items read as the control shows them. Read through
// Qt's public accessibility API only; QAccessible::installUpdateHandler catches the
// announcements before they would go to the bus.
#include <QtTest>

#include <QAccessible>
#include <QToolTip>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorHexagon.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::ColorHexagon;

namespace {

struct Announcement {
  QAccessible::Event type;
  QObject* object;
  int child;
};
QList<Announcement> heard;

void Hear(QAccessibleEvent* event) { heard.append({event->type(), event->object(), event->child()}); }

// The tooltip the surface gives when Qt asks for it at the item.
QString ToolTipAt(QWidget* surface, QAccessibleInterface* item) {
  const QPoint global = item->rect().center();
  QHelpEvent ask(QEvent::ToolTip, surface->mapFromGlobal(global), global);
  QApplication::sendEvent(surface, &ask);
  QToolTip::hideText();
  return surface->toolTip();
}

// The one focus announcement since the last key, as the index of the item it names.
int AnnouncedItem(QObject* surface, QAccessible::Event type = QAccessible::Focus) {
  QList<int> items;
  for (const Announcement& a : heard) {
    if (a.type == type && a.object == surface) items << a.child;
  }
  return items.size() == 1 ? items.front() : -2;
}

void ShowFocused(QWidget& control) {
  control.show();
  control.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&control));
  control.setFocus();
  QVERIFY(control.focusWidget() != nullptr && control.focusWidget()->hasFocus());
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

  // Every palette, with and without its buttons: the Right arrow walks the Automatic
  // button, each cell and the More Colors button, and each move is announced on the
  // item it reaches, which is focused and named as the control shows it (the cells by
  // their tooltips, read where the surface gives them; the buttons by their captions).
  void walkingAPaletteAnnouncesEachItemInOrder_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("buttons");
    const QMetaEnum styles = QMetaEnum::fromType<LumoColorCombo::ComboPickStyles>();
    for (int i = 0; i < styles.keyCount(); ++i) {
      QTest::addRow("%s", styles.key(i)) << styles.value(i) << true;
      QTest::addRow("%s without buttons", styles.key(i)) << styles.value(i) << false;
    }
  }
  void walkingAPaletteAnnouncesEachItemInOrder() {
    QFETCH(int, style);
    QFETCH(bool, buttons);
    ColorBox box;
    box.setPickStyle(static_cast<LumoColorCombo::ComboPickStyles>(style));
    box.setAllowAutomatic(buttons);
    box.setAllowMoreColors(buttons);
    ShowFocused(box);
    QWidget* surface = box.surface();
    QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(surface);
    QCOMPARE(grid->role(), QAccessible::List);
    QCOMPARE(grid->text(QAccessible::Name), box.accessibleName());
    const int count = grid->childCount();
    QVERIFY(count > (buttons ? 2 : 0));
    // From the Automatic place the walk goes round to it again (or to the first cell).
    for (int step = 1; step <= count; ++step) {
      heard.clear();
      QTest::keyClick(surface, Qt::Key_Right);
      const int index = buttons ? step % count : step - 1;
      QCOMPARE(AnnouncedItem(surface), index);
      QAccessibleInterface* item = grid->child(index);
      QVERIFY(item->state().focused);
      QCOMPARE(grid->indexOfChild(item), index);
      QCOMPARE(grid->childAt(item->rect().center().x(), item->rect().center().y()), item);
      const bool automatic = buttons && index == 0;
      const bool moreColors = buttons && index == count - 1;
      QCOMPARE(item->role(), automatic || moreColors ? QAccessible::PushButton : QAccessible::ListItem);
      const QString name = automatic    ? box.AutomaticText()
                           : moreColors ? box.MoreColorsText()
                                        : ToolTipAt(surface, item);
      QCOMPARE(item->text(QAccessible::Name), name);
    }
  }

  // The honeycomb's arrow keys move its selection: each move is announced as focus and
  // selection on the cell that now carries the control's colour.
  void honeycombKeysAnnounceTheSelectedCell() {
    ColorHexagon hexagon;
    hexagon.setIsAutomatic(false);
    ShowFocused(hexagon);
    QWidget* surface = hexagon.surface();
    QAccessibleInterface* honeycomb = QAccessible::queryAccessibleInterface(surface);
    QCOMPARE(honeycomb->text(QAccessible::Name), hexagon.accessibleName());
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
      heard.clear();
      QTest::keyClick(surface, key);
      const int index = AnnouncedItem(surface);
      QVERIFY(index >= 0);
      QCOMPARE(AnnouncedItem(surface, QAccessible::Selection), index);
      QAccessibleInterface* cell = honeycomb->child(index);
      QVERIFY(cell->state().selected && cell->state().focused);
      QVERIFY2(cell->text(QAccessible::Name).endsWith(QString("(%1)").arg(cell->text(QAccessible::Description))),
               qPrintable(cell->text(QAccessible::Name)));
      const auto color = static_cast<quint32>(hexagon.Color());
      QCOMPARE(cell->text(QAccessible::Description).toUpper(),
               QString("#%1%2%3")
                   .arg(color & 0xFF, 2, 16, QChar('0'))
                   .arg((color >> 8) & 0xFF, 2, 16, QChar('0'))
                   .arg((color >> 16) & 0xFF, 2, 16, QChar('0'))
                   .toUpper());
    }
  }
};

QTEST_MAIN(AccessibilityAnnounceTest)
#include "accessibility_announce_test.moc"
