// A control hosted on one of the library's forms and one an application places get the
// same container events from their Qt site.
#include <QtTest>

#include <QLineEdit>

#include <memory>

#include "RecordingFormEvents.h"
#include "colormodel/ControlEvents.h"
#include "qt/FormDesigns.h"
#include "qt/QtControlSite.h"
#include "qt/QtFormWindow.h"
#include "qt/QtTextBox.h"
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo::host;

namespace {

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

// One control in its window: the control's box with its drawing surface inside, and a
// text field beside it that holds the focus when the control does not. An application
// places it on its own window (`form` null), or it is hosted on one of the library's
// forms and reached by name as the core does.
struct Placement {
  explicit Placement(bool onLibraryForm) {
    if (onLibraryForm) {
      form = FormDesigns().load("frmHosting", formEvents);
      window = form.get();
      control = &form->children().addHostedControl(QStringLiteral("Hosted"));
      inner = form->children().findSurface(QStringLiteral("Hosted"));
      outside = form->children().addTextBox(QStringLiteral("txtOutside")).lineEdit();
      site = &form->children().site(QStringLiteral("Hosted"));
    } else {
      window = new QWidget;
      control = new QWidget(window);
      inner = new SurfaceWidget(control);
      outside = new QLineEdit(window);
      ownSite = std::make_unique<QtControlSite>(control);
      site = ownSite.get();
    }
    for (QWidget* focusable : {control, inner}) focusable->setFocusPolicy(Qt::StrongFocus);
    control->setMinimumSize(40, 30);
    outside->move(0, 60);
    site->Attach(&events);
  }
  ~Placement() {
    ownSite.reset();
    if (!form) delete window;
  }
  QWidget* Named(const QString& name) const {
    return name == "control" ? control : name == "inner" ? inner : name == "outside" ? outside : nullptr;
  }
  RecordingControl events;  // first in, last out: the site reports to it until it goes
  RecordingFormEvents formEvents;
  std::unique_ptr<QtFormWindow> form;
  QWidget* window = nullptr;
  QWidget* control = nullptr;
  QWidget* inner = nullptr;
  QWidget* outside = nullptr;
  std::unique_ptr<QtControlSite> ownSite;
  QtControlSite* site = nullptr;
};

}  // namespace

class ControlSiteEventsTest : public QObject {
  Q_OBJECT

 private slots:
  // `focused` holds the focus in the shown window before `action` ("" leaves the
  // window hidden until the action shows it).
  void placedAndHostedControlsGetTheSameEvents_data() {
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

  void placedAndHostedControlsGetTheSameEvents() {
    QFETCH(QString, focused);
    QFETCH(QString, action);
    QFETCH(QStringList, expected);
    for (const bool onLibraryForm : {false, true}) {
      const auto p = std::make_unique<Placement>(onLibraryForm);
      p->site->setUserMode(action != "show in designer");
      p->site->SetAccessKeys("k");
      if (!focused.isEmpty()) {
        p->window->show();
        p->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(p->window));
        p->Named(focused)->setFocus();
        QCoreApplication::processEvents();
      }
      p->events.log.clear();
      if (action.startsWith("show")) p->window->show();
      if (action == "hide") p->control->hide();
      if (action == "resize") p->control->setMinimumSize(p->control->width() + 10, p->control->height());
      if (action == "Alt+K") QTest::keyClick(p->outside, Qt::Key_K, Qt::AltModifier);
      if (QWidget* target = p->Named(action)) target->setFocus();
      QCoreApplication::processEvents();

      QCOMPARE(p->events.log, expected);
      p->window->hide();
    }
  }
};

QTEST_MAIN(ControlSiteEventsTest)
#include "control_site_events_test.moc"
