#include <QtTest>

#include <QColorDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <memory>

#include "ModalCloser.h"
#include "colormodel/RuntimeError.h"
#include "qt/QtColorChooser.h"
#include "qt/QtControlSite.h"
#include "qt/QtHost.h"
#include "qt/QtMessageBox.h"
#include "qt/QtTimerService.h"
#include "qt/WidgetHandles.h"

using namespace LumoColorCombo::host;

class HostServicesTest : public QObject {
  Q_OBJECT

 private slots:
  void reportedErrorShowsWarningBoxWithTheMessage();
  void messageBoxAnswersTheButtonPressed_data();
  void messageBoxAnswersTheButtonPressed();
  void timersTickWhileEnabledAndSurviveTheirOwnDestruction();
  void colorChooserAnswersTheConfirmedColour_data();
  void colorChooserAnswersTheConfirmedColour();
  void siteSizesTheWidgetInTwips_data();
  void siteSizesTheWidgetInTwips();
  void siteReportsTheFormsAmbientProperties();
  void siteAccessKeyGivesFocus();
};

void HostServicesTest::reportedErrorShowsWarningBoxWithTheMessage() {
  QtHost host;
  QString title, text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  ModalCloser<QMessageBox> closer([&](QMessageBox& box) {
    title = box.windowTitle();
    text = box.text();
    icon = box.icon();
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
  });

  host.runtime().Errors().ReportError(6, "Overflow", "CColorboxCol", "FindClosest");

  QVERIFY(closer.acted());
  QCOMPARE(title, QStringLiteral("Error"));
  QCOMPARE(icon, QMessageBox::Warning);
  QCOMPARE(text, QStringLiteral("Error Number: 6\nModule: CColorboxCol\nProcedure: FindClosest\n\nOverflow\n"));
}

void HostServicesTest::messageBoxAnswersTheButtonPressed_data() {
  QTest::addColumn<int>("style");
  QTest::addColumn<int>("press");  // a QMessageBox::StandardButton, or a key
  QTest::addColumn<int>("icon");
  QTest::addColumn<int>("buttonCount");
  QTest::addColumn<int>("answer");
  QTest::newRow("OK") << 0 << int(QMessageBox::Ok) << int(QMessageBox::NoIcon) << 1 << 1;
  QTest::newRow("Abort/Retry/Ignore, Retry, critical") << 2 + 16 << int(QMessageBox::Retry) << int(QMessageBox::Critical) << 3 << 4;
  QTest::newRow("Yes/No/Cancel, No, information") << 3 + 64 << int(QMessageBox::No) << int(QMessageBox::Information) << 3 << 7;
  QTest::newRow("Yes/No, Yes, exclamation") << 4 + 48 << int(QMessageBox::Yes) << int(QMessageBox::Warning) << 2 << 6;
  QTest::newRow("Yes/No/Cancel, Escape") << 3 << int(Qt::Key_Escape) << int(QMessageBox::NoIcon) << 3 << 2;
  QTest::newRow("Yes/No, second default, Return") << 4 + 256 << int(Qt::Key_Return) << int(QMessageBox::NoIcon) << 2 << 7;
}

void HostServicesTest::messageBoxAnswersTheButtonPressed() {
  QFETCH(int, style);
  QFETCH(int, press);
  QFETCH(int, icon);
  QFETCH(int, buttonCount);
  QFETCH(int, answer);
  QtMessageBox messages;
  int shownIcon = -1;
  qsizetype shownButtons = 0;
  ModalCloser<QMessageBox> closer([&](QMessageBox& box) {
    shownIcon = box.icon();
    shownButtons = box.buttons().size();
    if (QAbstractButton* button = box.button(QMessageBox::StandardButton(press))) {
      QTest::mouseClick(button, Qt::LeftButton);
    } else {
      QTest::keyClick(&box, Qt::Key(press));
    }
  });

  QCOMPARE(messages.MsgBox("Line one\r\nLine two", style, "Title"), answer);
  QCOMPARE(shownIcon, icon);
  QCOMPARE(shownButtons, qsizetype(buttonCount));
}

void HostServicesTest::timersTickWhileEnabledAndSurviveTheirOwnDestruction() {
  QtTimerService timers;
  int quietTicks = 0;
  int selfDestroyingTicks = 0;
  int ticks = 0;
  const std::unique_ptr<lumo::HostTimer> quiet = timers.CreateTimer([&] { ++quietTicks; });
  quiet->SetInterval(1);
  std::unique_ptr<lumo::HostTimer> selfDestroying = timers.CreateTimer([&] {
    ++selfDestroyingTicks;
    selfDestroying.reset();
  });
  selfDestroying->SetInterval(1);
  selfDestroying->SetEnabled(true);
  const std::unique_ptr<lumo::HostTimer> timer = timers.CreateTimer([&] { ++ticks; });
  timer->SetInterval(1);
  timer->SetEnabled(true);

  QTRY_VERIFY(ticks >= 5);
  QVERIFY(!quiet->Enabled());
  QCOMPARE(quietTicks, 0);
  QVERIFY(!selfDestroying);
  QCOMPARE(selfDestroyingTicks, 1);
}

void HostServicesTest::colorChooserAnswersTheConfirmedColour_data() {
  QTest::addColumn<bool>("confirm");
  QTest::addColumn<bool>("cancelError");
  QTest::addColumn<int>("expected");
  QTest::addColumn<bool>("raises");
  const int initial = lumo::RGB(1, 2, 3);
  QTest::newRow("confirmed") << true << true << lumo::RGB(10, 20, 250) << false;
  QTest::newRow("cancelled with error") << false << true << initial << true;
}

void HostServicesTest::colorChooserAnswersTheConfirmedColour() {
  QFETCH(bool, confirm);
  QFETCH(bool, cancelError);
  QFETCH(int, expected);
  QFETCH(bool, raises);
  QtColorChooser chooser;
  chooser.SetColor(lumo::RGB(1, 2, 3));
  chooser.SetCancelError(cancelError);
  QColor opened;
  ModalCloser<QColorDialog> closer([&](QColorDialog& dialog) {
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
  QCOMPARE(raised, raises);
}

void HostServicesTest::siteSizesTheWidgetInTwips_data() {
  QTest::addColumn<int>("twipsWide");
  QTest::addColumn<int>("twipsHigh");
  QTest::addColumn<QSize>("pixels");
  QTest::newRow("whole pixels") << 3585 << 255 << QSize(239, 17);
  QTest::newRow("under half rounds down") << 3592 << 22 << QSize(239, 1);
  QTest::newRow("over half rounds up") << 3593 << 23 << QSize(240, 2);
}

void HostServicesTest::siteSizesTheWidgetInTwips() {
  QFETCH(int, twipsWide);
  QFETCH(int, twipsHigh);
  QFETCH(QSize, pixels);
  QWidget widget;
  QtControlSite site(&widget);

  site.Size(twipsWide, twipsHigh);

  QCOMPARE(widget.size(), pixels);
  QCOMPARE(widget.minimumSize(), pixels);
  QCOMPARE(site.Width(), pixels.width() * 15);
  QCOMPARE(site.Height(), pixels.height() * 15);
}

void HostServicesTest::siteReportsTheFormsAmbientProperties() {
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
  QCOMPARE(changes.count(), 1);
  QCOMPARE(changes.at(0).at(0).toString(), QStringLiteral("Style [Let]"));
  QVERIFY(!control->isEnabled());
  QVERIFY(!site.AmbientUserMode());
  QCOMPARE(site.hWnd(), WidgetHandles::handleOf(control));
}

void HostServicesTest::siteAccessKeyGivesFocus() {
  QWidget form;
  auto* other = new QLineEdit(&form);
  auto* control = new QLineEdit(&form);
  control->move(0, 40);
  QtControlSite site(control);
  QSignalSpy pressed(&site, &QtControlSite::accessKeyPressed);
  site.SetAccessKeys("c");
  form.show();
  form.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&form));
  other->setFocus();

  QTest::keyClick(other, Qt::Key_C, Qt::AltModifier);

  QTRY_VERIFY(control->hasFocus());
  QCOMPARE(pressed.count(), 1);
  QCOMPARE(site.accessKeys(), QStringLiteral("c"));
}

QTEST_MAIN(HostServicesTest)
#include "host_services_test.moc"
