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
    log << QStringLiteral("AccessKeyPress %1").arg(keyAscii);
  }
  QStringList log;
};

// One control in its window: the control's box with its drawing surface inside, and a
// text field beside it that holds the focus when the control does not.
struct Placement {
  QWidget* window = nullptr;
  QWidget* control = nullptr;
  QWidget* inner = nullptr;
  QWidget* outside = nullptr;
  QtControlSite* site = nullptr;
  RecordingControl events;

  void prepare() {
    control->setFocusPolicy(Qt::StrongFocus);
    inner->setFocusPolicy(Qt::StrongFocus);
    control->setMinimumSize(40, 30);
    outside->move(0, 60);
    site->Attach(&events);
  }
  void activate() {
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
  }
};

// A control an application places on its own window.
struct AppPlacement : Placement {
  QWidget form;
  std::unique_ptr<QtControlSite> ownSite;
  AppPlacement() {
    window = &form;
    control = new QWidget(&form);
    inner = new SurfaceWidget(control);
    outside = new QLineEdit(&form);
    ownSite = std::make_unique<QtControlSite>(control);
    site = ownSite.get();
    prepare();
  }
};

// A control hosted on one of the library's forms, reached by name as the core does.
struct FormPlacement : Placement {
  RecordingFormEvents formEvents;
  std::unique_ptr<QtFormWindow> form = FormDesigns().load("frmHosting", formEvents);
  FormPlacement() {
    window = form.get();
    control = &form->children().addHostedControl(QStringLiteral("Hosted"));
    inner = form->children().findSurface(QStringLiteral("Hosted"));
    outside = form->children().addTextBox(QStringLiteral("txtOutside")).lineEdit();
    site = &form->children().site(QStringLiteral("Hosted"));
    prepare();
  }
};

enum Action { ShowAtRunTime, ShowInDesigner, Hide, Resize, FocusIntoChild, FocusOntoItself, FocusItselfToChild,
              FocusOut, AccessKey };

// Brings the placement to where the action starts, then clears the record.
void Arrange(Placement& p, Action action) {
  if (action == ShowInDesigner) p.site->setUserMode(false);
  if (action != ShowAtRunTime && action != ShowInDesigner) p.activate();
  if (action == FocusItselfToChild) p.control->setFocus();
  if (action == FocusOut) p.inner->setFocus();
  if (action == Hide || action == FocusIntoChild || action == FocusOntoItself || action == AccessKey) {
    p.outside->setFocus();
  }
  if (action == AccessKey) p.site->SetAccessKeys("k");
  QCoreApplication::processEvents();
  p.events.log.clear();
}

void Act(Placement& p, Action action) {
  switch (action) {
    case ShowAtRunTime:
    case ShowInDesigner: p.window->show(); break;
    case Hide: p.control->hide(); break;
    case Resize: p.control->setMinimumSize(p.control->width() + 10, p.control->height()); break;
    case FocusIntoChild:
    case FocusItselfToChild: p.inner->setFocus(); break;
    case FocusOntoItself: p.control->setFocus(); break;
    case FocusOut: p.outside->setFocus(); break;
    case AccessKey: QTest::keyClick(p.outside, Qt::Key_K, Qt::AltModifier); break;
  }
  QCoreApplication::processEvents();
}

}  // namespace

class ControlSiteEventsTest : public QObject {
  Q_OBJECT

 private slots:
  void placedAndHostedControlsGetTheSameEvents_data();
  void placedAndHostedControlsGetTheSameEvents();
};

void ControlSiteEventsTest::placedAndHostedControlsGetTheSameEvents_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QStringList>("expected");
  // The control is first in its window's focus chain, so showing the window focuses it.
  QTest::newRow("shown at run time") << int(ShowAtRunTime)
                                     << QStringList{"Resize", "Show", "EnterFocus", "GotFocus"};
  QTest::newRow("shown in a designer") << int(ShowInDesigner) << QStringList{"Resize", "EnterFocus", "GotFocus"};
  QTest::newRow("hidden") << int(Hide) << QStringList{"Hide"};
  QTest::newRow("resized") << int(Resize) << QStringList{"Resize"};
  QTest::newRow("focus into a child") << int(FocusIntoChild) << QStringList{"EnterFocus"};
  QTest::newRow("focus onto the control") << int(FocusOntoItself) << QStringList{"EnterFocus", "GotFocus"};
  QTest::newRow("focus on to a child") << int(FocusItselfToChild) << QStringList{"LostFocus"};
  QTest::newRow("focus out") << int(FocusOut) << QStringList{"ExitFocus"};
  QTest::newRow("access key") << int(AccessKey)
                              << QStringList{"EnterFocus", "GotFocus", "AccessKeyPress " + QString::number('k')};
}

void ControlSiteEventsTest::placedAndHostedControlsGetTheSameEvents() {
  QFETCH(int, action);
  QFETCH(QStringList, expected);
  AppPlacement placed;
  FormPlacement hosted;

  QList<QStringList> received;
  for (Placement* placement : {static_cast<Placement*>(&placed), static_cast<Placement*>(&hosted)}) {
    Arrange(*placement, Action(action));
    Act(*placement, Action(action));
    received << placement->events.log;
    placement->window->hide();
  }

  QCOMPARE(received.at(0), expected);
  QCOMPARE(received.at(1), expected);
}

QTEST_MAIN(ControlSiteEventsTest)
#include "control_site_events_test.moc"
