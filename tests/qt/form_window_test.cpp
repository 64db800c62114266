#include <QtTest>

#include <QLineEdit>
#include <QPushButton>

#include <memory>

#include "RecordingFormEvents.h"
#include "colormodel/ControlSite.h"
#include "colormodel/SurfaceEvents.h"
#include "colormodel/TextBox.h"
#include "qt/QtFormWindow.h"
#include "qt/QtLabel.h"
#include "qt/QtTimerService.h"
#include "qt/QtWindowSystem.h"
#include "qt/SurfaceWidget.h"
#include "qt/WidgetHandles.h"

using namespace LumoColorCombo::host;

namespace {

// A surface's owner that writes the keys it gets into the form's log.
struct KeyLog : lumo::SurfaceEvents {
  explicit KeyLog(QStringList& target) : log(target) {}
  void KeyDown(std::int16_t& keyCode, std::int16_t /*shift*/) override { log << QStringLiteral("Surface %1").arg(keyCode); }
  QStringList& log;
};

}  // namespace

class FormWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { events_ = RecordingFormEvents(); }
  void modalShowReturnsOnlyAfterUnloadWhileTimersTick();
  void unloadAsksFirstAndTellsHow_data();
  void unloadAsksFirstAndTellsHow();
  void leavingTheColourFieldIsReportedOnce_data();
  void leavingTheColourFieldIsReportedOnce();
  void formSeesKeysBeforeTheFocusedChild_data();
  void formSeesKeysBeforeTheFocusedChild();
  void activationIsReported_data();
  void activationIsReported();
  void geometryIsInTwips_data();
  void geometryIsInTwips();
  void popupChildrenAreReachedByTheirDesignNames();
  void unknownChildIsMadeHiddenOnDemand();

 private:
  std::unique_ptr<QtFormWindow> showActive(const char* name) {
    auto form = windows_.designs().load(name, events_);
    form->Show(false);
    if (!QTest::qWaitForWindowActive(form.get())) qWarning("form not activated");
    return form;
  }

  QtWindowSystem windows_;
  RecordingFormEvents events_;
};

void FormWindowTest::modalShowReturnsOnlyAfterUnloadWhileTimersTick() {
  auto form = windows_.designs().load("frmDropdown", events_);
  QtTimerService timers;
  int ticks = 0;
  const auto timer = timers.CreateTimer([&] {
    if (++ticks == 3) form->Unload();
  });
  timer->SetInterval(1);
  timer->SetEnabled(true);

  form->Show(true);

  QCOMPARE(ticks, 3);
  QVERIFY(!form->IsLoaded() && !form->isVisible() && !form->isShowingModally());
  QCOMPARE(events_.only("QueryUnload|Unload"), QStringList({"QueryUnload 1", "Unload"}));
}

void FormWindowTest::unloadAsksFirstAndTellsHow_data() {
  QTest::addColumn<QString>("how");
  QTest::addColumn<bool>("cancel");
  QTest::addColumn<QStringList>("expected");
  QTest::newRow("title bar") << "close" << false << QStringList({"QueryUnload 0", "Unload"});
  QTest::newRow("title bar, cancelled") << "close" << true << QStringList({"QueryUnload 0"});
  QTest::newRow("Escape") << "escape" << false << QStringList({"QueryUnload 0", "Unload"});
  QTest::newRow("code") << "unload" << false << QStringList({"QueryUnload 1", "Unload"});
  QTest::newRow("code, cancelled") << "unload" << true << QStringList({"QueryUnload 1"});
}

void FormWindowTest::unloadAsksFirstAndTellsHow() {
  QFETCH(QString, how);
  QFETCH(bool, cancel);
  QFETCH(QStringList, expected);
  auto form = showActive("frmPopup");
  events_.cancelUnload = cancel;

  if (how == "close") form->close();
  if (how == "escape") QTest::keyClick(form->children().findButton("cmdButton", 1), Qt::Key_Escape);
  if (how == "unload") form->Unload();

  QCOMPARE(events_.only("QueryUnload|Unload"), expected);
  QCOMPARE(form->IsLoaded(), cancel);
  QCOMPARE(form->isVisible(), cancel);
}

void FormWindowTest::leavingTheColourFieldIsReportedOnce_data() {
  QTest::addColumn<QString>("how");
  QTest::addColumn<QStringList>("expected");
  QTest::newRow("click Cancel") << "click" << QStringList({"LostFocus txtColor", "Click cmdButton 1"});
  QTest::newRow("Return") << "return" << QStringList({"LostFocus txtColor"});
  QTest::newRow("Return, then Tab") << "return tab" << QStringList({"LostFocus txtColor"});
  QTest::newRow("Tab") << "tab" << QStringList({"LostFocus txtColor"});
  QTest::newRow("another window") << "deactivate" << QStringList();
}

void FormWindowTest::leavingTheColourFieldIsReportedOnce() {
  QFETCH(QString, how);
  QFETCH(QStringList, expected);
  auto form = showActive("frmPopup");
  QLineEdit* field = form->children().findLineEdit("txtColor");
  field->setFocus(Qt::MouseFocusReason);
  QTest::keyClicks(field, "ff,0,0");
  QWidget elsewhere;

  if (how.startsWith("return")) QTest::keyClick(field, Qt::Key_Return);
  if (how.endsWith("tab")) QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
  if (how == "click") QTest::mouseClick(form->children().findButton("cmdButton", 1), Qt::LeftButton);
  if (how == "deactivate") {
    elsewhere.show();
    elsewhere.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
  }

  QCOMPARE(events_.only("LostFocus|Click"), expected);
  QVERIFY(form->IsLoaded());
}

void FormWindowTest::formSeesKeysBeforeTheFocusedChild_data() {
  QTest::addColumn<bool>("swallow");
  QTest::addColumn<QStringList>("expected");
  QTest::newRow("passed on") << false << QStringList({"KeyDown 115", "Surface 115"});
  QTest::newRow("swallowed") << true << QStringList({"KeyDown 115"});
}

void FormWindowTest::formSeesKeysBeforeTheFocusedChild() {
  QFETCH(bool, swallow);
  QFETCH(QStringList, expected);
  auto form = showActive("frmDropdown");
  auto& surface = static_cast<SurfaceWidget&>(form->Surface("ColorBox1"));
  KeyLog keys(events_.log);
  surface.SetListener(&keys);
  events_.swallowKeys = swallow;

  QTest::keyClick(&surface, Qt::Key_F4);

  QCOMPARE(events_.only("KeyDown|Surface"), expected);
}

// A dialog is activated by the window system; a popup, which Qt never activates, once
// it is exposed, and Qt closes it when another window takes the activation.
void FormWindowTest::activationIsReported_data() {
  QTest::addColumn<QString>("form");
  QTest::newRow("dialog") << "frmPopup";
  QTest::newRow("popup") << "frmDropdown";
}

void FormWindowTest::activationIsReported() {
  QFETCH(QString, form);
  auto window = showActive(qPrintable(form));
  QTRY_COMPARE(events_.only("Activate|Deactivate"), QStringList({"Activate"}));
  QWidget other;
  other.show();
  other.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&other));

  QTRY_COMPARE(events_.only("Activate|Deactivate"), QStringList({"Activate", "Deactivate"}));
}

void FormWindowTest::geometryIsInTwips_data() {
  QTest::addColumn<QString>("form");
  QTest::addColumn<bool>("moveWhileHidden");
  QTest::addColumn<QRect>("twips");
  QTest::addColumn<QRect>("pixels");
  QTest::newRow("whole pixels") << "frmDropdown" << false << QRect(1500, 3000, 3000, 4500) << QRect(100, 200, 200, 300);
  QTest::newRow("nearest pixel") << "frmDropdown" << false << QRect(1507, 3008, 3022, 4493) << QRect(100, 201, 201, 300);
  QTest::newRow("framed") << "frmPopup" << false << QRect(1500, 3000, 7500, 6000) << QRect(100, 200, 500, 400);
  QTest::newRow("framed, moved hidden") << "frmPopup" << true << QRect(1500, 3000, 7500, 6000) << QRect(100, 200, 500, 400);
}

void FormWindowTest::geometryIsInTwips() {
  QFETCH(QString, form);
  QFETCH(bool, moveWhileHidden);
  QFETCH(QRect, twips);
  QFETCH(QRect, pixels);
  auto window = windows_.designs().load(form.toStdString(), events_);

  if (moveWhileHidden) window->Move(twips.x(), twips.y(), twips.width(), twips.height());
  window->Show(false);
  QVERIFY(QTest::qWaitForWindowExposed(window.get()));
  if (!moveWhileHidden) window->Move(twips.x(), twips.y(), twips.width(), twips.height());

  QTRY_COMPARE(window->frameGeometry(), pixels);
  QCOMPARE(QRect(window->Left(), window->Top(), window->Width(), window->Height()),
           QRect(pixels.topLeft() * 15, pixels.size() * 15));
  QCOMPARE(QSize(window->ScaleWidth(), window->ScaleHeight()), window->size() * 15);
}

void FormWindowTest::popupChildrenAreReachedByTheirDesignNames() {
  auto form = showActive("frmPopup");
  auto& hexagon = static_cast<SurfaceWidget&>(form->Surface("ColorHexagon1"));
  lumo::ControlSite& site = form->Site("ColorHexagon1");
  lumo::Label& overColor = form->LabelNamed("ColorHexagon1.lblOverColor");
  auto& frame = static_cast<SurfaceWidget&>(form->Surface("picColorBack"));
  auto& newSwatch = static_cast<SurfaceWidget&>(form->Surface("picNew"));

  QCOMPARE(form->findChild<QtLabel*>("lblHeader(1)"), &dynamic_cast<QtLabel&>(form->LabelNamed("lblHeader(1)")));
  QCOMPARE(form->LabelNamed("lblHeader(1)").Caption(), std::string("New:"));
  QVERIFY(form->children().findButton("cmdButton", 0)->isDefault());
  QCOMPARE(hexagon.size(), QSize(239, 249));
  QCOMPARE(QRect(overColor.Left(), overColor.Top(), overColor.Width(), overColor.Height()),
           QRect(0, 249 * 15, 239 * 15, 17 * 15));
  QCOMPARE(site.AmbientDisplayName(), std::string("ColorHexagon1"));
  QCOMPARE(site.hWnd(), WidgetHandles::handleOf(hexagon.parentWidget()));
  newSwatch.Move(60, 75, 780, 540);
  site.Size(3585, 4020);
  QCOMPARE(newSwatch.parentWidget(), static_cast<QWidget*>(&frame));
  QCOMPARE(newSwatch.geometry(), QRect(4, 5, 52, 36));
  QTRY_COMPARE(hexagon.parentWidget()->size(), QSize(239, 268));
}

void FormWindowTest::unknownChildIsMadeHiddenOnDemand() {
  auto form = showActive("frmDropdown");

  auto& surface = static_cast<SurfaceWidget&>(form->Surface("picMissing"));
  lumo::TextBox& text = form->TextField("txtMissing");
  text.SetText("grün");

  QCOMPARE(&form->Surface("picMissing"), static_cast<lumo::DrawingSurface*>(&surface));
  QCOMPARE(form->Site("picMissing").hWnd(), WidgetHandles::handleOf(surface.parentWidget()));
  QCOMPARE(&form->TextField("txtMissing"), &text);
  QCOMPARE(&form->LabelNamed("lblMissing"), &form->LabelNamed("lblMissing"));
  QCOMPARE(text.Text(), std::string("grün"));
  QVERIFY(!surface.isVisible() && !form->children().findLineEdit("txtMissing")->isVisible());
}

QTEST_MAIN(FormWindowTest)
#include "form_window_test.moc"
