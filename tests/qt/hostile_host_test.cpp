// A host may delete a control, its window or the whole form while the library runs a
// modal loop (a timer or socket handler fires inside it). Each loop must come back
// without touching what is gone and without an error box about it; AddressSanitizer
// builds turn any such touch into a failure.
#include <QColorDialog>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QtTest>

#include "InsideModalLoop.h"
#include "colorbox/ColorBox.h"
#include "colorcombo/frmDropdown.h"
#include "colormodel/ColorChooser.h"
#include "colormodel/Runtime.h"
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/MoreColorsDialog.h>
#include "qt/QtFormWindow.h"
#include "qt/QtHost.h"
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo;

namespace {

enum class Loop { ErrorBox, MoreColors, Chooser, Dropdown, About };
// What the host deletes: the control, or the window holding it. `OnPick` deletes the
// combo from its own BeforeColorChanged, raised by a pick in its drop-down.
enum class Victim { Control, Window, OnPick };

constexpr OLE_COLOR kSystemColor = 0x80000010;  // the honeycomb has no cell for it
constexpr OLE_COLOR kStartColor = 0x336699;

lumo::Runtime& DefaultRuntime() { return host::QtHost::instance().runtime(); }

// The loop's window: the visible dialog that is not the host's.
QDialog* LoopWindow(const QWidget* host) {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<QDialog*>(top);
    if (dialog != nullptr && dialog != host && dialog->isVisible()) return dialog;
  }
  return nullptr;
}

void PickAnotherCell(QDialog& dropdown) {
  auto& form = static_cast<host::QtFormWindow&>(dropdown);
  for (const lumo::CellPtr& cell : *lumo::frmDropdown::Instance(DefaultRuntime()).ColorBox1()->Cells()) {
    if (cell->Color() == kStartColor || cell->BoundRight() <= cell->BoundLeft()) continue;
    const QPoint centre((cell->BoundLeft() + cell->BoundRight()) / 2, (cell->BoundTop() + cell->BoundBottom()) / 2);
    QTest::mouseClick(form.children().findSurface(QStringLiteral("ColorBox1")), Qt::LeftButton, {}, centre);
    return;
  }
}

}  // namespace

class HostileHostTest : public QObject {
  Q_OBJECT

 private slots:
  void loopSurvivesItsHostDeletingTheControl_data() {
    QTest::addColumn<Loop>("loop");
    QTest::addColumn<Victim>("victim");
    QTest::newRow("error box, control") << Loop::ErrorBox << Victim::Control;
    QTest::newRow("error box, window") << Loop::ErrorBox << Victim::Window;
    QTest::newRow("More Colors, control") << Loop::MoreColors << Victim::Control;
    QTest::newRow("More Colors, window") << Loop::MoreColors << Victim::Window;
    QTest::newRow("colour chooser, window") << Loop::Chooser << Victim::Window;
    QTest::newRow("drop-down, control") << Loop::Dropdown << Victim::Control;
    QTest::newRow("drop-down, window") << Loop::Dropdown << Victim::Window;
    QTest::newRow("drop-down, control on BeforeColorChanged") << Loop::Dropdown << Victim::OnPick;
    QTest::newRow("About box, control") << Loop::About << Victim::Control;
    QTest::newRow("About box, window") << Loop::About << Victim::Window;
  }

  void loopSurvivesItsHostDeletingTheControl() {
    QFETCH(Loop, loop);
    QFETCH(Victim, victim);
    QPointer<QDialog> window = new QDialog;
    window->resize(320, 240);
    QPointer<QObject> control = MakeControl(loop, *window);
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));

    auto* combo = qobject_cast<ColorCombo*>(control.data());
    if (victim == Victim::OnPick) {
      QObject::connect(combo, &ColorCombo::BeforeColorChanged, combo, [combo](OLE_COLOR, bool&) { delete combo; });
    }
    InsideModalLoop<QDialog> host(
        [&](QDialog& loopWindow) {
      const QPointer<QDialog> open(&loopWindow);
          if (victim == Victim::OnPick) return PickAnotherCell(loopWindow);
          if (victim == Victim::Control) delete control.data();
          if (victim == Victim::Window) delete window.data();
          if (open) open->close();
        },
        [&window] { return LoopWindow(window); });
    RunLoop(loop, control);

    QVERIFY(host.acted());
    QCOMPARE(host.laterWindows(), 0);
    QVERIFY(control.isNull());
    QCOMPARE(window.isNull(), victim == Victim::Window);
    delete window.data();
  }

 private:
  static QObject* MakeControl(Loop loop, QDialog& window) {
    switch (loop) {
      case Loop::ErrorBox: {
        auto* hexagon = new ColorHexagon(&window);
        hexagon->setIsAutomatic(false);
        return hexagon;
      }
      case Loop::MoreColors: return new MoreColorsDialog(&window);
      case Loop::Chooser: return new QObject(&window);  // the chooser has no control of its own
      default: {
        auto* combo = new ColorCombo(&window);
        combo->setGeometry(10, 10, 160, combo->height());
        combo->setIsAutomatic(false);
        combo->setColor(kStartColor);
        return combo;
      }
    }
  }

  // Opens the loop; it returns once the host's action has closed it.
  static void RunLoop(Loop loop, QObject* control) {
    switch (loop) {
      case Loop::ErrorBox: return qobject_cast<ColorHexagon*>(control)->setColor(kSystemColor);
      case Loop::MoreColors: qobject_cast<MoreColorsDialog*>(control)->exec(); return;
      case Loop::Chooser: {
        lumo::ColorChooser& chooser = DefaultRuntime().Chooser();
        chooser.SetCancelError(false);
        return chooser.ShowColor();
      }
      case Loop::Dropdown: {
        // Sent, not QTest-clicked: the release opens the drop-down, and the combo may be
        // gone when it returns.
        QWidget* surface = qobject_cast<ColorCombo*>(control)->surface();
        const QPointF at(20, 5);
        QMouseEvent press(QEvent::MouseButtonPress, at, surface->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QMouseEvent release(QEvent::MouseButtonRelease, at, surface->mapToGlobal(at), Qt::LeftButton, {}, {});
        QApplication::sendEvent(surface, &press);
        QApplication::sendEvent(surface, &release);
        return;
      }
      case Loop::About: return qobject_cast<ColorCombo*>(control)->AboutBox();
    }
  }
};

QTEST_MAIN(HostileHostTest)
#include "hostile_host_test.moc"
