// The Qt host's services: the message box, timers in a form's modal loop, the colour
// chooser and About box with their modal loops, the control site's ambient properties,
// and the window system (capture, handles, focus, screen points, the default host).
#include <QtTest>

#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

#include <memory>

#include "InsideModalLoop.h"
#include "colormodel/RuntimeError.h"
#include "qt/AboutDialog.h"
#include "qt/QtColorChooser.h"
#include "qt/QtControlSite.h"
#include "qt/QtFormWindow.h"
#include "qt/QtHost.h"
#include "qt/QtMessageBox.h"
#include "qt/QtTimerService.h"
#include "qt/QtWindowSystem.h"
#include "qt/Version.h"
#include "qt/WidgetHandles.h"

using namespace LumoColorCombo::host;

// Stands in for the browser: records what it is asked to open.
class UrlCatcher : public QObject {
  Q_OBJECT
 public slots:
  void open(const QUrl& url) { opened << url; }

 public:
  QList<QUrl> opened;
};

class HostServicesTest : public QObject {
  Q_OBJECT

  QtWindowSystem windows_;

 private slots:
  // The box shows the prompt with plain line ends under the title, with the style's
  // icon and buttons, and answers the code of the button pressed.
  void messageBoxAnswersTheButtonPressed_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("press");  // a QMessageBox::StandardButton, or a key
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttonCount");
    QTest::addColumn<int>("answer");
    QTest::newRow("OK, exclamation") << 48 << int(QMessageBox::Ok) << int(QMessageBox::Warning) << 1 << 1;
    QTest::newRow("Abort/Retry/Ignore, Retry, critical") << 2 + 16 << int(QMessageBox::Retry) << int(QMessageBox::Critical) << 3 << 4;
    QTest::newRow("Yes/No/Cancel, No, information") << 3 + 64 << int(QMessageBox::No) << int(QMessageBox::Information) << 3 << 7;
    QTest::newRow("Yes/No/Cancel, Escape") << 3 << int(Qt::Key_Escape) << int(QMessageBox::NoIcon) << 3 << 2;
    QTest::newRow("Yes/No, second default, Return") << 4 + 256 << int(Qt::Key_Return) << int(QMessageBox::NoIcon) << 2 << 7;
  }
  void messageBoxAnswersTheButtonPressed() {
    QFETCH(int, style);
    QFETCH(int, press);
    QFETCH(int, icon);
    QFETCH(int, buttonCount);
    QFETCH(int, answer);
    QtMessageBox messages;
    QStringList shown;  // title, prompt, icon, number of buttons
    const InsideModalLoop<QMessageBox> closer([&](QMessageBox& box) {
      shown << box.windowTitle() << box.text() << QString::number(box.icon())
            << QString::number(box.buttons().size());
      if (QAbstractButton* button = box.button(QMessageBox::StandardButton(press))) {
        QTest::mouseClick(button, Qt::LeftButton);
      } else {
        QTest::keyClick(&box, Qt::Key(press));
      }
    });
    QCOMPARE(messages.MsgBox("Line one\r\nLine two", style, "Title"), answer);
    QVERIFY(closer.ended());
    QCOMPARE(shown, (QStringList{"Title", "Line one\nLine two", QString::number(icon),
                                 QString::number(buttonCount)}));
  }

  // A modal show returns only once its form unloads, here from the third tick of a timer
  // that deletes itself in that tick; a timer never enabled stays quiet meanwhile.
  void modalShowRunsTimersUntilTheFormUnloads() {
    lumo::FormEvents ignored;
    const std::unique_ptr<QtFormWindow> form = windows_.designs().load("frmDropdown", ignored);
    QtTimerService timers;
    int ticks = 0, quietTicks = 0;
    const std::unique_ptr<lumo::HostTimer> quiet = timers.CreateTimer([&] { ++quietTicks; });
    quiet->SetInterval(1);
    std::unique_ptr<lumo::HostTimer> timer = timers.CreateTimer([&] {
      if (++ticks < 3) return;
      form->Unload();
      timer.reset();
    });
    timer->SetInterval(1);
    timer->SetEnabled(true);

    form->Show(true);

    QCOMPARE(ticks, 3);
    QVERIFY(!timer && !quiet->Enabled());
    QCOMPARE(quietTicks, 0);
    QVERIFY(!form->IsLoaded() && !form->isVisible() && !form->isShowingModally());
  }

  // A cancel raises its error with CancelError set; hostile_host_test runs it clear.
  void colorChooserAnswersTheConfirmedColour_data() {
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<int>("expected");
    QTest::newRow("confirmed") << true << lumo::RGB(10, 20, 250);
    QTest::newRow("cancelled") << false << lumo::RGB(1, 2, 3);
  }
  void colorChooserAnswersTheConfirmedColour() {
    QFETCH(bool, confirm);
    QFETCH(int, expected);
    QtColorChooser chooser;
    chooser.SetColor(lumo::RGB(1, 2, 3));
    chooser.SetCancelError(true);
    QColor opened;
    const InsideModalLoop<QColorDialog> closer([&](QColorDialog& dialog) {
      opened = dialog.currentColor();
      dialog.setCurrentColor(QColor(10, 20, 250));
      confirm ? dialog.accept() : dialog.reject();
    });
    bool raised = false;
    try {
      chooser.ShowColor();
    } catch (const lumo::RuntimeError& error) {
      raised = error.Number() == lumo::err::ChooserCancelled;
    }
    QCOMPARE(opened, QColor(1, 2, 3));
    QCOMPARE(chooser.Color(), expected);
    QCOMPARE(raised, !confirm);
  }

  void aboutBoxShowsTheVersionsAndSystemInfoAndOpensTheReleasesPage() {
    QWidget form;
    auto* owner = new QWidget(&form);
    UrlCatcher browser;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "open");
    QString shown, info;
    const InsideModalLoop<AboutDialog> closer([&](AboutDialog& dialog) {
      QVERIFY(dialog.isModal());
      QCOMPARE(dialog.parentWidget(), &form);
      for (const QLabel* label : dialog.findChildren<QLabel*>()) shown += label->text();
      QTest::mouseClick(dialog.findChild<QPushButton*>("systemInfo"), Qt::LeftButton);
      info = dialog.findChild<QPlainTextEdit*>("systemInfoText")->toPlainText();
      for (const char* button : {"copy", "checkForUpdates", "ok"}) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
      }
    });
    QtHost::instance().runtime().Windows().ShowAboutBox(WidgetHandles::handleOf(owner));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));

    QVERIFY(closer.ended());
    QVERIFY(shown.contains(QStringLiteral("LumoColorCombo " LUMOCOLORCOMBO_VERSION_STR)));
    QVERIFY(shown.contains(QStringLiteral("Qt %1").arg(qVersion())));
    for (const char* fact : {"LumoColorCombo " LUMOCOLORCOMBO_VERSION_STR, "Qt platform plugin: offscreen",
                             "device pixel ratio 1", "Style: "}) {
      QVERIFY2(info.contains(QLatin1String(fact)), fact);
    }
    QCOMPARE(QGuiApplication::clipboard()->text(), info);
    QCOMPARE(browser.opened, QList<QUrl>{QUrl(QStringLiteral(LUMOCOLORCOMBO_RELEASES_URL))});
    QVERIFY(form.findChildren<AboutDialog*>().isEmpty());  // gone once closed
  }

  void siteReportsTheFormsAmbientProperties() {
    QWidget form;
    QFont formFont(QStringLiteral("Serif"));
    formFont.setPointSizeF(11.5);
    formFont.setBold(true);
    formFont.setUnderline(true);
    form.setFont(formFont);
    auto* control = new QWidget(&form);
    control->setObjectName(QStringLiteral("ColorCombo1"));
    control->setFont(QFont(QStringLiteral("Monospace"), 20));
    QtControlSite site(control);
    QSignalSpy changes(&site, &QtControlSite::propertyChanged);
    const lumo::StdFont ambient = site.AmbientFont();
    site.PropertyChanged("Style [Let]");
    site.SetEnabled(false);
    site.setUserMode(false);
    QCOMPARE(QString::fromStdString(ambient.Name), formFont.family());
    QCOMPARE(ambient.Size, 11.5);
    QVERIFY(ambient.Bold && ambient.Underline && !ambient.Italic && !ambient.Strikethrough);
    QCOMPARE(site.AmbientDisplayName(), std::string("ColorCombo1"));
    QCOMPARE(changes, QList<QVariantList>{{QStringLiteral("Style [Let]")}});
    QVERIFY(!control->isEnabled() && !site.AmbientUserMode());
  }

  // Taking the capture answers the previous holder; a stale handle takes no capture and
  // finds no widget. (A press outside reaching the holder: picker_widgets_test, x11.)
  void captureAnswersThePreviousHolderAndIgnoresStaleHandles() {
    QWidget window;
    auto* holder = new QWidget(&window);
    auto* other = new QWidget(&window);
    auto* gone = new QWidget(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const lumo::WindowHandle a = WidgetHandles::handleOf(holder);
    const lumo::WindowHandle b = WidgetHandles::handleOf(other);
    const lumo::WindowHandle stale = WidgetHandles::handleOf(gone);
    delete gone;

    QCOMPARE(windows_.SetCapture(b), lumo::WindowHandle{0});
    QCOMPARE(windows_.SetCapture(a), b);
    QCOMPARE(windows_.SetCapture(stale), a);
    QCOMPARE(QWidget::mouseGrabber(), holder);
    QVERIFY(windows_.ReleaseCapture());
    QCOMPARE(windows_.GetCapture(), lumo::WindowHandle{0});
    QCOMPARE(WidgetHandles::widgetOf(stale), nullptr);
    QCOMPARE(windows_.ClientToScreen(stale, {3, 4}), (lumo::Point{3, 4}));
  }

  void activeWindowFocusAndScreenPointsComeFromQt() {
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

  void defaultHostIsOnePerApplicationAndItsDoEventsRunsQueuedWork() {
    QtHost& host = QtHost::instance();
    bool ran = false;
    QMetaObject::invokeMethod(qApp, [&] { ran = true; }, Qt::QueuedConnection);

    host.runtime().Windows().DoEvents();

    QVERIFY(ran);
    QCOMPARE(&QtHost::instance(), &host);
    QCOMPARE(&host.runtime().Windows(), static_cast<lumo::WindowSystem*>(&host.windows()));
  }
};

QTEST_MAIN(HostServicesTest)
#include "host_services_test.moc"
