// The Qt host's forms and control sites: unloading, focus and key delivery, activation,
// geometry in twips, and the container events a control gets from its site.
#include <QtTest>

#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <memory>
#include <string>

#include "colormodel/ControlEvents.h"
#include "colormodel/FormEvents.h"
#include "colormodel/SurfaceEvents.h"
#include "colormodel/TextBox.h"
#include "qt/FormDesigns.h"
#include "qt/QtControlSite.h"
#include "qt/QtFormWindow.h"
#include "qt/QtTextBox.h"
#include "qt/QtWindowSystem.h"
#include "qt/SurfaceWidget.h"
#include "qt/WidgetHandles.h"

using namespace LumoColorCombo::host;

namespace {

// The core object behind a form and its surface, reduced to a log of what the window
// delivered, in order ("QueryUnload 0", "Unload", "Click cmdButton 1", "LostFocus
// txtColor", "KeyDown 115", "Surface 115", "Activate"), with the answers a test scripts.
class RecordingFormEvents : public lumo::FormEvents, public lumo::SurfaceEvents {
 public:
  void Form_Activate() override { log << QStringLiteral("Activate"); }
  void Form_Deactivate() override { log << QStringLiteral("Deactivate"); }
  void Form_KeyDown(std::int16_t& keyCode, std::int16_t /*shift*/) override {
    log << QStringLiteral("KeyDown %1").arg(keyCode);
    if (swallowKeys) keyCode = 0;
  }
  void Form_QueryUnload(bool& cancel, std::int32_t unloadMode) override {
    log << QStringLiteral("QueryUnload %1").arg(unloadMode);
    cancel = cancelUnload;
  }
  void Form_Unload() override { log << QStringLiteral("Unload"); }
  void ControlClick(const std::string& control, std::int32_t index) override {
    log << QStringLiteral("Click %1 %2").arg(QString::fromStdString(control)).arg(index);
  }
  void ControlLostFocus(const std::string& control) override {
    log << QStringLiteral("LostFocus %1").arg(QString::fromStdString(control));
  }
  void KeyDown(std::int16_t& keyCode, std::int16_t /*shift*/) override {
    log << QStringLiteral("Surface %1").arg(keyCode);
  }

  // The entries that start with `prefix`, in order.
  QStringList only(const QString& prefix) const { return log.filter(QRegularExpression('^' + prefix)); }

  QStringList log;
  bool cancelUnload = false;
  bool swallowKeys = false;
};

// A control reduced to the container events it receives, in order.
class RecordingControl : public lumo::ControlEvents {
 public:
  void UserControl_Resize() override { log << QStringLiteral("Resize"); }
  void UserControl_Show() override { log << QStringLiteral("Show"); }
  void UserControl_Hide() override { log << QStringLiteral("Hide"); }
  void UserControl_GotFocus() override { log << QStringLiteral("GotFocus"); }
  void UserControl_LostFocus() override { log << QStringLiteral("LostFocus"); }
  void UserControl_EnterFocus() override { log << QStringLiteral("EnterFocus"); }
  void UserControl_ExitFocus() override { log << QStringLiteral("ExitFocus"); }
  void UserControl_AccessKeyPress(std::int16_t keyAscii) override {
    log << "AccessKeyPress " + QString(QChar(keyAscii));
  }
  QStringList log;
};

// One control hosted on a library form and reached by name as the core does: the
// control's box with its drawing surface inside, and a text field beside it that holds
// the focus when the control does not.
struct Placement {
  Placement() {
    for (QWidget* focusable : {control, inner}) focusable->setFocusPolicy(Qt::StrongFocus);
    control->setMinimumSize(40, 30);
    outside->move(0, 60);
    site.Attach(&events);
  }
  QWidget* Named(const QString& name) const {
    return name == "control" ? control : name == "inner" ? inner : name == "outside" ? outside : nullptr;
  }
  RecordingControl events;  // first in, last out: the site reports to it until it goes
  RecordingFormEvents formEvents;
  std::unique_ptr<QtFormWindow> form = FormDesigns().load("frmHosting", formEvents);
  QWidget* control = &form->children().addHostedControl(QStringLiteral("Hosted"));
  QWidget* inner = form->children().findSurface(QStringLiteral("Hosted"));
  QWidget* outside = form->children().addTextBox(QStringLiteral("txtOutside")).lineEdit();
  QtControlSite& site = form->children().site(QStringLiteral("Hosted"));
};

}  // namespace

class FormWindowTest : public QObject {
  Q_OBJECT

  QtWindowSystem windows_;
  RecordingFormEvents events_;

  std::unique_ptr<QtFormWindow> showActive(const char* name) {
    auto form = windows_.designs().load(name, events_);
    form->Show(false);
    if (!QTest::qWaitForWindowActive(form.get())) qWarning("form not activated");
    return form;
  }

 private slots:
  void init() { events_ = RecordingFormEvents(); }

  void unloadAsksFirstAndTellsHow_data() {
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("cancel");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("title bar") << "close" << false << QStringList({"QueryUnload 0", "Unload"});
    QTest::newRow("title bar, cancelled") << "close" << true << QStringList({"QueryUnload 0"});
    QTest::newRow("Escape") << "escape" << false << QStringList({"QueryUnload 0", "Unload"});
    QTest::newRow("code") << "unload" << false << QStringList({"QueryUnload 1", "Unload"});
  }

  void unloadAsksFirstAndTellsHow() {
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

  void leavingTheColourFieldIsReportedOnce_data() {
    QTest::addColumn<QString>("how");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("click Cancel") << "click" << QStringList({"LostFocus txtColor", "Click cmdButton 1"});
    QTest::newRow("Return") << "return" << QStringList({"LostFocus txtColor"});
    QTest::newRow("Return, then Tab") << "return tab" << QStringList({"LostFocus txtColor"});
    QTest::newRow("Tab") << "tab" << QStringList({"LostFocus txtColor"});
    QTest::newRow("another window") << "deactivate" << QStringList();
  }

  void leavingTheColourFieldIsReportedOnce() {
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

  void formSeesKeysBeforeTheFocusedChild_data() {
    QTest::addColumn<bool>("swallow");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("passed on") << false << QStringList({"KeyDown 115", "Surface 115"});
    QTest::newRow("swallowed") << true << QStringList({"KeyDown 115"});
  }

  void formSeesKeysBeforeTheFocusedChild() {
    QFETCH(bool, swallow);
    QFETCH(QStringList, expected);
    auto form = showActive("frmDropdown");
    auto& surface = static_cast<SurfaceWidget&>(form->Surface("ColorBox1"));
    surface.SetListener(&events_);
    events_.swallowKeys = swallow;

    QTest::keyClick(&surface, Qt::Key_F4);

    QCOMPARE(events_.only("KeyDown|Surface"), expected);
  }

  // The window system's activation of a dialog and its loss (a popup's, which Qt never
  // activates: the drop-down tests).
  void dialogActivationIsReported() {
    auto form = showActive("frmPopup");
    QTRY_COMPARE(events_.only("Activate|Deactivate"), QStringList({"Activate"}));
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTRY_COMPARE(events_.only("Activate|Deactivate"), QStringList({"Activate", "Deactivate"}));
  }

  void geometryIsInTwips_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("moveWhileHidden");
    QTest::addColumn<QRect>("twips");
    QTest::addColumn<QRect>("pixels");
    QTest::newRow("nearest pixel") << "frmDropdown" << false << QRect(1507, 3008, 3022, 4493) << QRect(100, 201, 201, 300);
    QTest::newRow("framed") << "frmPopup" << false << QRect(1500, 3000, 7500, 6000) << QRect(100, 200, 500, 400);
    QTest::newRow("framed, moved hidden") << "frmPopup" << true << QRect(1500, 3000, 7500, 6000) << QRect(100, 200, 500, 400);
  }

  void geometryIsInTwips() {
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
    QCOMPARE(window->windowFlags().testFlag(Qt::FramelessWindowHint), form == "frmDropdown");
  }

  // The popup's swatches sit inside their frame, placed in twips like any surface; a
  // site sizes its control's box in twips.
  void popupChildrenSitWhereTheDesignPutsThem() {
    auto form = showActive("frmPopup");
    auto& newSwatch = static_cast<SurfaceWidget&>(form->Surface("picNew"));
    newSwatch.Move(60, 75, 780, 540);
    form->Site("ColorHexagon1").Size(3585, 4020);
    QCOMPARE(newSwatch.parentWidget(), form->children().findSurface(QStringLiteral("picColorBack")));
    QCOMPARE(newSwatch.geometry(), QRect(4, 5, 52, 36));
    const QWidget* hexagonBox = form->children().findSurface(QStringLiteral("ColorHexagon1"))->parentWidget();
    QTRY_COMPARE(hexagonBox->size(), QSize(239, 268));
  }

  void unknownChildIsMadeHiddenOnDemand() {
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

  // `focused` holds the focus in the shown window before `action` ("" leaves the
  // window hidden until the action shows it).
  void hostedControlGetsItsContainerEvents_data() {
    QTest::addColumn<QString>("focused");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("expected");
    // The control is first in its window's focus chain, so showing the window focuses it.
    QTest::newRow("shown at run time") << "" << "show" << QStringList{"Resize", "Show", "EnterFocus", "GotFocus"};
    QTest::newRow("shown in a designer") << "" << "show in designer" << QStringList{"Resize", "EnterFocus", "GotFocus"};
    QTest::newRow("hidden") << "outside" << "hide" << QStringList{"Hide"};
    QTest::newRow("resized") << "outside" << "resize" << QStringList{"Resize"};
    QTest::newRow("focus into a child") << "outside" << "inner" << QStringList{"EnterFocus"};
    QTest::newRow("focus onto the control") << "outside" << "control" << QStringList{"EnterFocus", "GotFocus"};
    QTest::newRow("focus on to a child") << "control" << "inner" << QStringList{"LostFocus"};
    QTest::newRow("focus out") << "inner" << "outside" << QStringList{"ExitFocus"};
    QTest::newRow("access key") << "outside" << "Alt+K" << QStringList{"EnterFocus", "GotFocus", "AccessKeyPress k"};
  }

  void hostedControlGetsItsContainerEvents() {
    QFETCH(QString, focused);
    QFETCH(QString, action);
    QFETCH(QStringList, expected);
    Placement p;
    p.site.setUserMode(action != "show in designer");
    p.site.SetAccessKeys("k");
    if (!focused.isEmpty()) {
      p.form->show();
      p.form->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(p.form.get()));
      p.Named(focused)->setFocus();
      QCoreApplication::processEvents();
    }
    p.events.log.clear();
    if (action.startsWith("show")) p.form->show();
    if (action == "hide") p.control->hide();
    if (action == "resize") p.control->setMinimumSize(p.control->width() + 10, p.control->height());
    if (action == "Alt+K") QTest::keyClick(p.outside, Qt::Key_K, Qt::AltModifier);
    if (QWidget* target = p.Named(action)) target->setFocus();
    QCoreApplication::processEvents();

    QCOMPARE(p.events.log, expected);
  }
};

QTEST_MAIN(FormWindowTest)
#include "form_window_test.moc"
