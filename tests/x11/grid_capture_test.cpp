// A shown grid holds the mouse in the X server itself: a press anywhere on the desktop,
// even outside the application, reaches it, as a drop-down's grid needs. (A press on a
// cell of a grid shown with its window: gallery_session_test; a press elsewhere in the
// application, which Qt routes to its own grabber: picker_widgets_test.)
#include <QScreen>
#include <QtTest>

#include "ServerInput.h"
#include <LumoColorCombo/ColorBox.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::OLE_COLOR;

class GridCaptureTest : public QObject {
  Q_OBJECT

 private slots:
  void pressOutsideTheApplicationGoesToTheShownGrid();
};

void GridCaptureTest::pressOutsideTheApplicationGoesToTheShownGrid() {
  QStringList raised;  // outlives the window, whose closing raises UserCancel too
  QWidget window;
  window.setGeometry(100, 100, 320, 240);
  auto* box = new ColorBox(&window);
  box->move(20, 20);
  connect(box, &ColorBox::Click, this, [&](OLE_COLOR& color, const QString&, bool&) { raised << QString("Click %1").arg(color); });
  connect(box, &ColorBox::UserCancel, this, [&] { raised << "UserCancel"; });

  // Shown together with its window, the grid asks for the mouse before the window is mapped.
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QVERIFY(ServerInput::Click(window.screen()->geometry().bottomRight() - QPoint(10, 10)));

  QTRY_VERIFY(!raised.isEmpty());
  QCOMPARE(raised.first(), QStringLiteral("UserCancel"));
}

QTEST_MAIN(GridCaptureTest)
#include "grid_capture_test.moc"
