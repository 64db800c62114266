#include <QtTest>

#include <QLineEdit>
#include <QScreen>

#include <memory>

#include "RecordingFormEvents.h"
#include "qt/QtFormWindow.h"
#include "qt/QtHost.h"
#include "qt/QtWindowSystem.h"
#include "qt/WidgetHandles.h"

using namespace LumoColorCombo::host;

namespace {

// Notes which widget each mouse press went to.
class PressRecorder : public QObject {
 public:
  explicit PressRecorder(QList<QObject*>& pressed) : pressed_(pressed) {}
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress) pressed_ << watched;
    return false;
  }

 private:
  QList<QObject*>& pressed_;
};

}  // namespace

class WindowSystemTest : public QObject {
  Q_OBJECT

 private slots:
  void captureTakesClicksMadeOutsideTheHolder();
  void staleHandleFindsNothing();
  void activeWindowFocusAndScreenPointsComeFromQt();
  void formsLoadHiddenByName();
  void defaultHostIsOnePerApplication();

 private:
  QtWindowSystem windows_;
};

void WindowSystemTest::captureTakesClicksMadeOutsideTheHolder() {
  QWidget window;
  window.resize(200, 100);
  auto* holder = new QWidget(&window);
  holder->setGeometry(0, 0, 100, 100);
  auto* other = new QWidget(&window);
  other->setGeometry(100, 0, 100, 100);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QList<QObject*> pressed;
  PressRecorder recorder(pressed);
  holder->installEventFilter(&recorder);
  other->installEventFilter(&recorder);
  const lumo::WindowHandle a = WidgetHandles::handleOf(holder);
  const lumo::WindowHandle b = WidgetHandles::handleOf(other);

  QCOMPARE(windows_.SetCapture(b), lumo::WindowHandle{0});
  QCOMPARE(windows_.SetCapture(a), b);
  QCOMPARE(windows_.GetCapture(), a);
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(150, 50));
  QVERIFY(windows_.ReleaseCapture());
  QCOMPARE(windows_.GetCapture(), lumo::WindowHandle{0});
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(150, 50));

  QCOMPARE(pressed, (QList<QObject*>{holder, other}));
}

void WindowSystemTest::staleHandleFindsNothing() {
  QWidget window;
  auto* holder = new QWidget(&window);
  auto* gone = new QWidget(&window);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  const lumo::WindowHandle stale = WidgetHandles::handleOf(gone);
  delete gone;
  windows_.SetCapture(WidgetHandles::handleOf(holder));

  QCOMPARE(WidgetHandles::widgetOf(stale), nullptr);
  QCOMPARE(windows_.SetCapture(stale), WidgetHandles::handleOf(holder));
  QCOMPARE(QWidget::mouseGrabber(), holder);
  QCOMPARE(windows_.ClientToScreen(stale, {3, 4}), (lumo::Point{3, 4}));
  windows_.ReleaseCapture();
}

void WindowSystemTest::activeWindowFocusAndScreenPointsComeFromQt() {
  QWidget window;
  window.setGeometry(120, 80, 200, 100);
  auto* field = new QLineEdit(&window);
  field->setGeometry(10, 20, 50, 20);
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  field->setFocus();

  const lumo::Point screen = windows_.ClientToScreen(WidgetHandles::handleOf(field), {1, 2});

  QCOMPARE(windows_.GetActiveWindow(), WidgetHandles::handleOf(&window));
  QTRY_COMPARE(windows_.GetFocus(), WidgetHandles::handleOf(field));
  QCOMPARE(QPoint(screen.X, screen.Y), window.geometry().topLeft() + QPoint(11, 22));
  const QSize pixels = QGuiApplication::primaryScreen()->geometry().size();
  QCOMPARE(QSize(windows_.ScreenWidth(), windows_.ScreenHeight()), pixels * 15);
}

void WindowSystemTest::formsLoadHiddenByName() {
  RecordingFormEvents events;
  for (const char* name : {"frmPopup", "frmDropdown", "frmOther"}) {
    const std::unique_ptr<lumo::FormWindow> form = windows_.LoadForm(name, events);
    auto* window = dynamic_cast<QtFormWindow*>(form.get());
    QVERIFY(window && window->isWindow() && !window->isVisible() && form->IsLoaded());
    QCOMPARE(window->formName(), QString(name));
    QCOMPARE(form->hWnd(), WidgetHandles::handleOf(window));
    QCOMPARE(window->windowFlags().testFlag(Qt::FramelessWindowHint), QString(name) == "frmDropdown");
  }
  QVERIFY(events.log.isEmpty());
}

void WindowSystemTest::defaultHostIsOnePerApplication() {
  QtHost& host = QtHost::instance();
  bool ran = false;
  QMetaObject::invokeMethod(qApp, [&] { ran = true; }, Qt::QueuedConnection);

  host.runtime().Windows().DoEvents();

  QVERIFY(ran);
  QCOMPARE(&QtHost::instance(), &host);
  QCOMPARE(&host.runtime().Windows(), static_cast<lumo::WindowSystem*>(&host.windows()));
}

QTEST_MAIN(WindowSystemTest)
#include "window_system_test.moc"
