// The drop-down window as a real popup on an X server, through the core frmDropdown:
// placed under its field against the window that opens it, activated once shown, the
// active window while open, its grid given the keys (a pick, Escape; F4 reaching the
// form) and the pointer leaving it, and stepping aside for the More Colors dialog it
// opens, which then gets the mouse. (A pick with the mouse and presses outside the
// grid and the application: the combo's own X11 test, combo_dropdown_test.)
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "GridSpots.h"
#include "ServerInput.h"
#include "WhenReady.h"
#include "colorbox/ColorBox.h"
#include "colorcombo/frmDropdown.h"
#include "colormodel/Enums.h"
#include "colormodel/Runtime.h"
#include "qt/QtFormWindow.h"
#include "qt/QtHost.h"
#include "qt/SurfaceWidget.h"
#include "qt/WidgetHandles.h"

using namespace LumoColorCombo::host;

namespace {

QtFormWindow& FormOf(lumo::frmDropdown& dropdown) { return dynamic_cast<QtFormWindow&>(*dropdown.Window()); }

QPoint CentreOf(const QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }

}  // namespace

class DropdownPopupTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void userEndsTheDropDown_data();
  void userEndsTheDropDown();

 private:
  // What the user does once the drop-down is open; notes the colour a pick must give.
  void Act(const QString& action, QtFormWindow& popup, lumo::frmDropdown& dropdown);

  QWidget opener_;
  QLineEdit* field_ = nullptr;
  lumo::OLE_COLOR picked_ = -1;
  bool hotBeforeLeaving_ = false;
  std::unique_ptr<WhenReady> inDialog_;
};

void DropdownPopupTest::initTestCase() {
  opener_.setGeometry(100, 100, 420, 300);
  field_ = new QLineEdit(&opener_);
  field_->setGeometry(20, 20, 150, 24);
  opener_.show();
  opener_.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&opener_));
}

void DropdownPopupTest::userEndsTheDropDown_data() {
  QTest::addColumn<QString>("action");
  QTest::addColumn<bool>("committed");
  QTest::newRow("Right, Return") << "Right Return" << true;
  QTest::newRow("click outside the grid, in the application") << "window" << false;
  QTest::newRow("Escape") << "Escape" << false;
  QTest::newRow("F4") << "F4" << false;
  QTest::newRow("More Colors, a honeycomb cell, Ok") << "dialog" << true;
}

void DropdownPopupTest::userEndsTheDropDown() {
  QFETCH(QString, action);
  QFETCH(bool, committed);
  lumo::Runtime& runtime = QtHost::instance().runtime();
  lumo::frmDropdown& dropdown = lumo::frmDropdown::Instance(runtime);
  dropdown.Load();
  dropdown.ColorBox1()->SetAllowMoreColors(true);
  dropdown.SetOpenEffect(lumo::oecUnfold);
  QtFormWindow& popup = FormOf(dropdown);
  const QPoint under = field_->mapToGlobal(QPoint(0, field_->height()));
  popup.Move(under.x() * 15, under.y() * 15, popup.Width(), popup.Height());
  dropdown.RefreshForm();
  dropdown.CollapseForEffect();
  const QSize full(dropdown.FullWidth() / 15, dropdown.FullHeight() / 15);
  runtime.ReDimPopupResult(1);
  runtime.PopupResult()[0] = lumo::Variant(!committed);  // what an ending that writes nothing leaves

  QRect openGeometry;
  QWindow* placedAgainst = nullptr;
  bool activeWhileOpen = false;
  bool gridHasTheKeys = false;
  picked_ = -1;
  // Open once Form_Activate has run its opening effect to the end.
  WhenReady open([&] { return popup.isVisible() && !dropdown.Prepared(); }, [&] {
    openGeometry = popup.geometry();
    placedAgainst = popup.windowHandle()->transientParent();
    activeWhileOpen = runtime.Windows().GetActiveWindow() == popup.hWnd();
    gridHasTheKeys = QApplication::focusWidget() == popup.children().findSurface("ColorBox1");
    Act(action, popup, dropdown);
  });
  // Never hang: a drop-down (or dialog) that ignored the user is closed, and the test fails.
  QTimer::singleShot(15000, &popup, [&] {
    if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
    dropdown.Unload();
  });
  dropdown.Show();

  QCOMPARE(openGeometry, QRect(under, full));
  QCOMPARE(placedAgainst, opener_.windowHandle());
  QVERIFY(activeWhileOpen);
  QVERIFY(gridHasTheKeys);
  QVERIFY(!popup.isVisible());
  QCOMPARE(runtime.PopupResultAt(0).ToBoolean(), committed);
  if (action == "dialog") QCOMPARE(runtime.PopupResultAt(1).ToLong(), picked_);
  if (action == "window") QVERIFY(hotBeforeLeaving_ && !dropdown.ColorBox1()->HotCell());
}

void DropdownPopupTest::Act(const QString& action, QtFormWindow& popup, lumo::frmDropdown& dropdown) {
  SurfaceWidget& grid = *popup.children().findSurface("ColorBox1");
  if (action == "window") {
    // Hot on a cell first: the grid, holding the mouse, must see the pointer leave it.
    // (Off the centre of the cell, where a pick elsewhere may have left the pointer: Qt
    // drops a move to where the pointer already is.)
    ServerInput::MoveTo(grid.mapToGlobal(GridSpots::CellSpot(grid.image()) + QPoint(1, 1)));
    hotBeforeLeaving_ = QTest::qWaitFor([&] { return dropdown.ColorBox1()->HotCell() != nullptr; });
    ServerInput::Click(opener_.geometry().bottomRight() - QPoint(5, 5));
    return;
  }
  if (action != "dialog") {
    for (const QString& key : action.split(' ')) ServerInput::Key(key);
    return;
  }
  // The dialog: a press on a honeycomb cell and on Ok, both through the X server.
  inDialog_ = std::make_unique<WhenReady>(
      [] {
        auto* dialog = qobject_cast<QtFormWindow*>(QApplication::activeModalWidget());
        return dialog != nullptr && dialog->windowHandle()->isExposed() && dialog->isActiveWindow();
      },
      [this, &popup] {
        auto& dialog = *qobject_cast<QtFormWindow*>(QApplication::activeModalWidget());
        QVERIFY2(!popup.isVisible(), "the drop-down steps aside for the dialog");
        SurfaceWidget& honeycomb = *dialog.children().findSurface("ColorHexagon1");
        const QPoint cell = GridSpots::CellSpot(honeycomb.image());
        picked_ = GridSpots::ColorAt(honeycomb.image(), cell);
        ServerInput::Click(honeycomb.mapToGlobal(cell));
        ServerInput::Click(CentreOf(*dialog.children().findButton("cmdButton", 0)));
      });
  const lumo::Rect more = dropdown.ColorBox1()->MoreRect();
  ServerInput::Click(grid.mapToGlobal(QPoint((more.Left + more.Right) / 2, (more.Top + more.Bottom) / 2)));
}

QTEST_MAIN(DropdownPopupTest)
#include "dropdown_popup_test.moc"
