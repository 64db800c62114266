// A real ColorCombo on an X server, every press, move and key going through the server.
// Its drop-down is a popup under the field, placed against the combo's window, grown to
// its full size, active and with the keyboard on its grid, which holds the mouse: the
// colour under the pointer shows in the field, and the pointer leaving the grid ends its
// hot cell. A click or Return picks; the More Colors dialog stands over the combo's
// window in its palette, takes the mouse from the grid and its Ok picks; a press outside
// the grid, outside the application or the application losing the activation each close
// it with the old colour.
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include "ShownForms.h"
#include "WhenReady.h"
#include <LumoColorCombo/ColorCombo.h>
#include "colorbox/ColorBox.h"
#include "colorcombo/frmDropdown.h"
#include "qt/QtHost.h"

using namespace LumoColorCombo;
using ShownForms::CentreOf;

namespace {

constexpr OLE_COLOR kStartColor = 0x336699;

OLE_COLOR FieldColor(const ColorCombo& combo) {
  return GridSpots::ColorAt(combo.surface()->image(), QPoint(12, combo.height() / 2));
}

lumo::frmDropdown* Dropdown() { return host::QtHost::instance().runtime().SharedForm<lumo::frmDropdown>(); }

// The X server's root window: focusing it takes the activation from every window of
// the application, as switching to another application does.
QString RootWindow() {
  QProcess search;
  search.start(QStringLiteral("xdotool"), {"search", "--maxdepth", "0", ""});
  search.waitForFinished();
  return QString::fromLatin1(search.readAllStandardOutput()).trimmed();
}

}  // namespace

class ComboDropdownTest : public QObject {
  Q_OBJECT

 private slots:
  void endsThroughTheServer_data();
  void endsThroughTheServer();

 private:
  // What the user does once the drop-down is open and a cell is previewed.
  void End(const QString& ending, QWidget& window, host::SurfaceWidget& grid);

  bool hotLeft_ = false;
  OLE_COLOR inDialog_ = -1;  // the honeycomb cell clicked in the dialog
  std::unique_ptr<WhenReady> dialogUser_;
};

void ComboDropdownTest::endsThroughTheServer_data() {
  QTest::addColumn<QString>("ending");
  QTest::newRow("a click on the previewed cell") << "pick";
  QTest::newRow("Right, Return") << "keys";
  QTest::newRow("More Colors, a honeycomb cell, Ok") << "dialog";
  QTest::newRow("a press outside the grid, in the application") << "window";
  QTest::newRow("a press outside the application") << "desktop";
  QTest::newRow("the application losing the activation") << "deactivate";
}

void ComboDropdownTest::endsThroughTheServer() {
  QFETCH(QString, ending);
  QWidget window;
  window.setGeometry(100, 100, 400, 320);
  window.setPalette(QPalette(QColor(0x20, 0x24, 0x2C)));  // a palette the dialog takes on
  auto* combo = new ColorCombo(&window);
  combo->setGeometry(20, 20, 180, combo->height());
  combo->setIsAutomatic(false);
  combo->setColor(kStartColor);
  combo->setOpenEffect(oecUnfold);
  bool ended = false;
  OLE_COLOR committed = kStartColor;
  connect(combo, &ColorCombo::AfterColorChanged, [&](OLE_COLOR color) { committed = color; });
  connect(combo, &ColorCombo::AfterDropUp, [&] { ended = true; });
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));

  QRect shown, full;
  const QWindow* placedAgainst = nullptr;
  bool active = false, gridHasTheKeys = false;
  OLE_COLOR hovered = -1, previewed = -2;
  hotLeft_ = false;
  inDialog_ = -1;
  // Once Form_Activate has run the opening effect to its end.
  WhenReady user([] { return ShownForms::Find("frmDropdown") != nullptr && !Dropdown()->Prepared(); }, [&] {
    host::QtFormWindow& form = *ShownForms::Find("frmDropdown");
    shown = form.geometry();
    full = QRect(combo->mapToGlobal(QPoint(0, combo->height())),
                 QSize(Dropdown()->FullWidth() / 15, Dropdown()->FullHeight() / 15));
    placedAgainst = form.windowHandle()->transientParent();
    active = host::QtHost::instance().runtime().Windows().GetActiveWindow() == form.hWnd();
    host::SurfaceWidget& grid = *form.children().findSurface(QStringLiteral("ColorBox1"));
    gridHasTheKeys = QApplication::focusWidget() == &grid;
    const QPoint cell = GridSpots::CellSpot(grid.image());
    hovered = GridSpots::ColorAt(grid.image(), cell);
    ServerInput::MoveTo(grid.mapToGlobal(cell));
    (void)QTest::qWaitFor([&] { return FieldColor(*combo) == hovered; });
    previewed = FieldColor(*combo);
    End(ending, window, grid);
  });
  // Never hang: a drop-down (or dialog) that ignored the user is closed, and the test fails.
  bool rescued = false;
  QTimer::singleShot(15000, &window, [&rescued] {
    rescued = true;
    if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
    if (lumo::frmDropdown* dropdown = Dropdown()) dropdown->Unload();
  });

  QVERIFY(ServerInput::Click(combo->mapToGlobal(QPoint(30, combo->height() / 2))));
  QTRY_VERIFY_WITH_TIMEOUT(ended, 20000);
  QVERIFY2(!rescued, "the user's ending closed the drop-down");

  QCOMPARE(shown.size(), full.size());
  QCOMPARE(shown.left(), full.left());
  QVERIFY2(qAbs(shown.top() - full.top()) <= 1, "right under the field");
  QCOMPARE(placedAgainst, window.windowHandle());
  QVERIFY(active);
  QVERIFY(gridHasTheKeys);
  QCOMPARE(previewed, hovered);
  if (ending == "window") QVERIFY2(hotLeft_, "the grid saw the pointer leave");
  const OLE_COLOR chosen = ending == "pick"     ? hovered
                           : ending == "dialog" ? inDialog_
                           : ending == "keys"   ? combo->Color()  // the cell Right reached
                                                : kStartColor;
  // Which events a cycle raises, and in what order, is the core's to prove.
  QCOMPARE(chosen != kStartColor, ending == "pick" || ending == "keys" || ending == "dialog");
  QCOMPARE(committed, chosen);
  QCOMPARE(combo->Color(), chosen);
  QCOMPARE(FieldColor(*combo), chosen);
}

void ComboDropdownTest::End(const QString& ending, QWidget& window, host::SurfaceWidget& grid) {
  // The pointer rests on the cell already: a move there would wait for nothing.
  if (ending == "pick") ServerInput::Xdotool({"click", "1"});
  if (ending == "keys") {
    ServerInput::Key(QStringLiteral("Right"));
    ServerInput::Key(QStringLiteral("Return"));
  }
  if (ending == "window") {
    ServerInput::MoveTo(window.geometry().bottomRight() - QPoint(5, 5));
    hotLeft_ = QTest::qWaitFor([] { return Dropdown()->ColorBox1()->HotCell() == nullptr; });
    ServerInput::Xdotool({"click", "1"});
  }
  if (ending == "desktop") ServerInput::Click(window.screen()->geometry().bottomRight() - QPoint(10, 10));
  if (ending == "deactivate") ServerInput::Xdotool({"windowfocus", RootWindow()});
  if (ending != "dialog") return;
  // The dialog: a honeycomb cell and Ok, both through the X server.
  dialogUser_ = std::make_unique<WhenReady>(
      [] {
        host::QtFormWindow* dialog = ShownForms::Find("frmPopup");
        return dialog != nullptr && dialog->isActiveWindow();
      },
      [this, &window] {
        host::QtFormWindow& dialog = *ShownForms::Find("frmPopup");
        QVERIFY2(ShownForms::Find("frmDropdown") == nullptr, "the drop-down steps aside for the dialog");
        QCOMPARE(dialog.windowHandle()->transientParent(), window.windowHandle());
        QCOMPARE(dialog.grab().toImage().pixelColor(1, 1), window.palette().color(QPalette::Window));
        inDialog_ = ShownForms::ClickCell(*dialog.children().findSurface(QStringLiteral("ColorHexagon1")));
        ServerInput::Click(CentreOf(*dialog.children().findButton(QStringLiteral("cmdButton"), 0)));
      });
  const lumo::Rect more = Dropdown()->ColorBox1()->MoreRect();
  ServerInput::Click(grid.mapToGlobal(QPoint((more.Left + more.Right) / 2, (more.Top + more.Bottom) / 2)));
}

QTEST_MAIN(ComboDropdownTest)
#include "combo_dropdown_test.moc"
