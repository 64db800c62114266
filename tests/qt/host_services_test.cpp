// The Qt host's services with their modal loops: message box, timers, colour chooser,
// and the control site (ambient properties, access keys).
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
  void reportedErrorShowsWarningBoxWithTheMessage() {
    QtHost host;
    QStringList shown;
    ModalCloser<QMessageBox> closer([&](QMessageBox& box) {
      shown << box.windowTitle() << box.text() << QString::number(box.icon());
      QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    host.runtime().Errors().ReportError(6, "Overflow", "CColorboxCol", "FindClosest");
    QVERIFY(closer.acted());
    QCOMPARE(shown, (QStringList{"Error", "Error Number: 6\nModule: CColorboxCol\nProcedure: FindClosest\n\nOverflow\n",
                                 QString::number(QMessageBox::Warning)}));
  }

  void messageBoxAnswersTheButtonPressed_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("press");  // a QMessageBox::StandardButton, or a key
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttonCount");
    QTest::addColumn<int>("answer");
    QTest::newRow("OK") << 0 << int(QMessageBox::Ok) << int(QMessageBox::NoIcon) << 1 << 1;
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

  void timersTickWhileEnabledAndSurviveTheirOwnDestruction() {
    QtTimerService timers;
    int quietTicks = 0, selfDestroyingTicks = 0, ticks = 0;
    const std::unique_ptr<lumo::HostTimer> quiet = timers.CreateTimer([&] { ++quietTicks; });
    quiet->SetInterval(1);
    std::unique_ptr<lumo::HostTimer> selfDestroying = timers.CreateTimer([&] {
      ++selfDestroyingTicks;
      selfDestroying.reset();
    });
    const std::unique_ptr<lumo::HostTimer> timer = timers.CreateTimer([&] { ++ticks; });
    for (lumo::HostTimer* t : {selfDestroying.get(), timer.get()}) {
      t->SetInterval(1);
      t->SetEnabled(true);
    }
    QTRY_VERIFY(ticks >= 5);
    QVERIFY(!quiet->Enabled());
    QCOMPARE(quietTicks, 0);
    QVERIFY(!selfDestroying);
    QCOMPARE(selfDestroyingTicks, 1);
  }

  void colorChooserAnswersTheConfirmedColour_data() {
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<bool>("cancelError");
    QTest::addColumn<int>("expected");
    QTest::newRow("confirmed") << true << true << lumo::RGB(10, 20, 250);
    QTest::newRow("cancelled with error") << false << true << lumo::RGB(1, 2, 3);
    QTest::newRow("cancelled quietly") << false << false << lumo::RGB(1, 2, 3);
  }
  void colorChooserAnswersTheConfirmedColour() {
    QFETCH(bool, confirm);
    QFETCH(bool, cancelError);
    QFETCH(int, expected);
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
    QCOMPARE(raised, !confirm && cancelError);
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
    QCOMPARE(site.hWnd(), WidgetHandles::handleOf(control));
  }

  void siteAccessKeyGivesFocus() {
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
  }
};

QTEST_MAIN(HostServicesTest)
#include "host_services_test.moc"
