// A real ColorCombo on an X server, with every press, move and focus change going
// through the server: the drop-down opens under the field, the colour under the pointer
// shows in the field, a click picks it, and a press outside the grid, outside the
// application or the application losing the activation each close it with the old colour.
#include <QScreen>
#include <QtTest>

#include "GridSpots.h"
#include "ServerInput.h"
#include "WhenReady.h"
#include <LumoColorCombo/ColorCombo.h>
#include "qt/QtFormWindow.h"
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo;

namespace {

constexpr OLE_COLOR kStartColor = 0x336699;

QString Hex(OLE_COLOR color) { return QStringLiteral("%1").arg(color, 6, 16, QLatin1Char('0')); }

host::QtFormWindow* OpenDropdown() {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<host::QtFormWindow*>(top);
    if (form != nullptr && form->formName() == QLatin1String("frmDropdown") && form->isVisible() &&
        form->windowHandle()->isExposed()) {
      return form;
    }
  }
  return nullptr;
}

OLE_COLOR FieldColor(const ColorCombo& combo) {
  return GridSpots::ColorAt(combo.surface()->image(), QPoint(12, combo.height() / 2));
}

// The X server's root window: focusing it takes the activation from every window of
// the application, as switching to another application does.
QString RootWindow() {
  QProcess search;
  search.start(QStringLiteral("xdotool"), {"search", "--maxdepth", "0", ""});
  search.waitForFinished();
  return QString::fromLatin1(search.readAllStandardOutput()).trimmed();
}

}  // namespace

class ComboDropdownTest : public QObject {
  Q_OBJECT

 private slots:
  void closesThroughTheServer_data() {
    QTest::addColumn<QString>("ending");
    QTest::newRow("a click on the previewed cell") << "pick";
    QTest::newRow("a press outside the grid, in the application") << "window";
    QTest::newRow("a press outside the application") << "desktop";
    QTest::newRow("the application losing the activation") << "deactivate";
  }

  void closesThroughTheServer() {
    QFETCH(QString, ending);
    QWidget window;
    window.setGeometry(100, 100, 400, 320);
    auto* combo = new ColorCombo(&window);
    combo->setGeometry(20, 20, 180, combo->height());
    combo->setIsAutomatic(false);
    combo->setColor(kStartColor);
    QStringList log;
    connect(combo, &ColorCombo::BeforeDropDown, [&](bool&) { log << "BeforeDropDown"; });
    connect(combo, &ColorCombo::BeforeColorChanged,
            [&](OLE_COLOR color, bool&) { log << "BeforeColorChanged " + Hex(color); });
    connect(combo, &ColorCombo::AfterColorChanged, [&](OLE_COLOR color) { log << "AfterColorChanged " + Hex(color); });
    connect(combo, &ColorCombo::AfterDropUp, [&] { log << "AfterDropUp"; });
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QRect field, dropdown;
    OLE_COLOR hovered = -1, previewed = -2;
    QStringList whilePreviewing;
    WhenReady user([] { return OpenDropdown() != nullptr; }, [&] {
      host::QtFormWindow& form = *OpenDropdown();
      field = QRect(combo->mapToGlobal(QPoint(0, 0)), combo->size());
      dropdown = form.frameGeometry();
      host::SurfaceWidget& grid = *form.children().findSurface(QStringLiteral("ColorBox1"));
      const QPoint cell = GridSpots::CellSpot(grid.image());
      hovered = GridSpots::ColorAt(grid.image(), cell);
      ServerInput::MoveTo(grid.mapToGlobal(cell));
      (void)QTest::qWaitFor([&] { return FieldColor(*combo) == hovered; });
      previewed = FieldColor(*combo);
      whilePreviewing = log;
      // The pointer rests on the cell already: a move there would wait for nothing.
      if (ending == "pick") ServerInput::Xdotool({"click", "1"});
      if (ending == "window") ServerInput::Click(window.geometry().bottomRight() - QPoint(5, 5));
      if (ending == "desktop") ServerInput::Click(window.screen()->geometry().bottomRight() - QPoint(10, 10));
      if (ending == "deactivate") ServerInput::Xdotool({"windowfocus", RootWindow()});
    });
    // Never hang: a drop-down that ignored the user is closed, and the test fails.
    QTimer::singleShot(15000, [] {
      if (host::QtFormWindow* form = OpenDropdown()) form->Unload();
    });

    QVERIFY(ServerInput::Click(combo->mapToGlobal(QPoint(30, combo->height() / 2))));
    QTRY_VERIFY_WITH_TIMEOUT(log.endsWith("AfterDropUp"), 20000);

    QCOMPARE(dropdown.left(), field.left());
    QVERIFY2(qAbs(dropdown.top() - field.bottom()) <= 1, "right under the field");
    QCOMPARE(previewed, hovered);
    QCOMPARE(whilePreviewing, QStringList{"BeforeDropDown"});
    const bool picked = ending == "pick";
    const QStringList expected = picked ? QStringList{"BeforeDropDown", "BeforeColorChanged " + Hex(hovered),
                                                      "AfterColorChanged " + Hex(hovered), "AfterDropUp"}
                                        : QStringList{"BeforeDropDown", "AfterDropUp"};
    QCOMPARE(log, expected);
    QCOMPARE(combo->Color(), picked ? hovered : kStartColor);
    QCOMPARE(FieldColor(*combo), picked ? hovered : kStartColor);
  }
};

QTEST_MAIN(ComboDropdownTest)
#include "combo_dropdown_test.moc"
