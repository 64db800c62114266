// End to end: a real ColorCombo and its real drop-down, and the public More Colors
// dialog, driven with QTest while their modal loops run. Which events a pick raises
// and in what order is the core's to prove; here Qt delivers the input, paints the
// previews, relays the events as signals and announces the USER property. Where the
// popup goes on a real desktop and the dialog run from it: tests/x11.
#include <QPushButton>
#include <QWindow>
#include <QtTest>

#include <functional>

#include "InsideModalLoop.h"
#include "colorbox/ColorBox.h"
#include "colorcombo/frmDropdown.h"
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/MoreColorsDialog.h>
#include "qt/QtFormWindow.h"
#include "qt/QtHost.h"
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo;
using host::QtFormWindow;

namespace {

constexpr OLE_COLOR kStartColor = 0x336699;

QtFormWindow* OpenForm(const QString& name) {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<QtFormWindow*>(top);
    if (form != nullptr && form->isVisible() && form->formName() == name) return form;
  }
  return nullptr;
}

// Acts on the library form `name` from inside its modal loop.
InsideModalLoop<QtFormWindow> WhenShown(const QString& name, std::function<void(QtFormWindow&)> act) {
  return InsideModalLoop<QtFormWindow>(std::move(act), [name] { return OpenForm(name); });
}

lumo::Runtime& DefaultRuntime() { return host::QtHost::instance().runtime(); }
lumo::ColorBox& GridBox() { return *lumo::frmDropdown::Instance(DefaultRuntime()).ColorBox1(); }
QWidget& Grid(QtFormWindow& form) { return *form.children().findSurface(QStringLiteral("ColorBox1")); }
QPoint Centre(const lumo::Rect& r) { return {(r.Left + r.Right) / 2, (r.Top + r.Bottom) / 2}; }

// The centre of the first cell of another colour than `other`, and its colour.
std::pair<QPoint, OLE_COLOR> CellOtherThan(const lumo::CColorboxCol& cells, OLE_COLOR other) {
  for (const lumo::CellPtr& cell : cells) {
    if (cell->Color() == other || cell->BoundRight() <= cell->BoundLeft()) continue;
    return {Centre({cell->BoundLeft(), cell->BoundTop(), cell->BoundRight(), cell->BoundBottom()}), cell->Color()};
  }
  return {};
}

QRgb Rgb(OLE_COLOR color) { return qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF); }
QString Hex(OLE_COLOR color) { return QStringLiteral("%1").arg(color, 6, 16, QLatin1Char('0')); }
// The colour inside the field's swatch.
QRgb FieldColor(const ColorCombo& combo) { return combo.surface()->image().pixel(12, combo.height() / 2); }

// A window with a combo at its top; the combo's signals go to `log`, each with its argument.
struct Form {
  Form() {
    window.resize(320, 240);
    combo->setGeometry(10, 10, 160, combo->height());
    QObject::connect(combo, &ColorCombo::BeforeDropDown, [this](bool& cancel) {
      log << QStringLiteral("BeforeDropDown");
      cancel = cancelDropDown;
    });
    QObject::connect(combo, &ColorCombo::BeforeColorChanged,
                     [this](OLE_COLOR color, bool&) { log << "BeforeColorChanged " + Hex(color); });
    QObject::connect(combo, &ColorCombo::AfterColorChanged,
                     [this](OLE_COLOR color) { log << "AfterColorChanged " + Hex(color); });
    QObject::connect(combo, &ColorCombo::BeforeIsAutomaticChanged,
                     [this](bool value, bool&) { log << QStringLiteral("BeforeIsAutomaticChanged %1").arg(value); });
    QObject::connect(combo, &ColorCombo::AfterIsAutomaticChanged,
                     [this](bool value) { log << QStringLiteral("AfterIsAutomaticChanged %1").arg(value); });
    QObject::connect(combo, &ColorCombo::AfterDropUp, [this] { log << QStringLiteral("AfterDropUp"); });
    combo->setIsAutomatic(false);
    combo->setColor(kStartColor);
  }
  void Show() {
    window.move(100, 100);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
  }
  void Click() { QTest::mouseClick(combo->surface(), Qt::LeftButton, {}, QPoint(20, 5)); }

  QWidget window;
  ColorCombo* combo = new ColorCombo(&window);
  QStringList log;
  bool cancelDropDown = false;  // what the host answers in BeforeDropDown
};

}  // namespace

class ColorComboWidgetTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() {
    if (QtFormWindow* form = OpenForm(QStringLiteral("frmDropdown"))) form->Unload();
  }

  // Each row starts with kStartColor, moves the pointer onto a cell (or not), and ends
  // the drop-down its way; a host that cancels BeforeDropDown through the signal's
  // reference keeps it shut. "%1" in the signals stands for the hovered colour.
  void previewsAndEachWayOfEnding_data() {
    QTest::addColumn<bool>("hover");
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QStringList>("raised");
    QTest::newRow("a press outside the grid") << true << "outside" << QStringList{"BeforeDropDown", "AfterDropUp"};
    QTest::newRow("a click on the previewed cell")
        << true << "cell"
        << QStringList{"BeforeDropDown", "BeforeColorChanged %1", "AfterColorChanged %1", "AfterDropUp"};
    QTest::newRow("a click on Automatic") << false << "automatic"
                                          << QStringList{"BeforeDropDown", "BeforeIsAutomaticChanged 1",
                                                         "AfterIsAutomaticChanged 1", "AfterDropUp"};
    QTest::newRow("cancelled by the host") << false << "cancelled" << QStringList{"BeforeDropDown"};
  }

  void previewsAndEachWayOfEnding() {
    QFETCH(bool, hover);
    QFETCH(QString, ending);
    QFETCH(QStringList, raised);
    Form form;
    form.cancelDropDown = ending == "cancelled";
    form.Show();
    QSignalSpy announced(form.combo, &ColorCombo::currentColorChanged);
    QPoint target;
    OLE_COLOR colour = kStartColor;
    const auto user = WhenShown(QStringLiteral("frmDropdown"), [&](QtFormWindow& window) {
      QWidget& grid = Grid(window);
      std::tie(target, colour) = CellOtherThan(*GridBox().Cells(), kStartColor);
      if (hover) {
        // From next to the cell, so the pointer moves even if it rests there already.
        QTest::mouseMove(&grid, target + QPoint(1, 1));
        QTest::mouseMove(&grid, target);
        QTRY_COMPARE(FieldColor(*form.combo), Rgb(colour));
        QCOMPARE(announced.count(), 0);  // a preview is never announced
      }
      if (ending == "automatic") target = Centre(GridBox().AutoRect());
      if (ending == "outside") target = QPoint(-20, grid.height() + 20);
      QTest::mouseClick(&grid, Qt::LeftButton, {}, target);
    });

    form.Click();

    QCOMPARE(user.ended(), ending != "cancelled");
    QCOMPARE(form.log, raised.replaceInStrings("%1", Hex(colour)));
    const QRgb shown = ending == "cell"        ? Rgb(colour)
                       : ending == "automatic" ? form.combo->surface()->resolve(form.combo->AutoColor()).rgb()
                                               : Rgb(kStartColor);
    QCOMPARE(FieldColor(*form.combo), shown);
    // Only what a pick leaves behind is announced, once.
    QCOMPARE(announced.count(), shown == Rgb(kStartColor) ? 0 : 1);
    if (!announced.isEmpty()) QCOMPARE(announced.at(0).at(0).value<QColor>().rgb(), shown);
    QVERIFY(OpenForm(QStringLiteral("frmDropdown")) == nullptr);
  }

  // The public dialog, given a widget, belongs to its window rather than to the active
  // one: it stands over it in its palette. Ok right after opening hands back what the
  // caller set. (What Cancel and the title bar hand back is the core's to prove.)
  void moreColorsDialogBelongsToTheWidgetsWindowAndHandsBackItsResult() {
    const QColor dark(0x20, 0x24, 0x2C);
    QWidget owner, active;
    owner.setPalette(QPalette(dark.lighter(150), dark));
    owner.show();
    active.show();
    QApplication::setActiveWindow(&active);
    MoreColorsDialog dialog(new QWidget(&owner));
    dialog.setIsAutomatic(false);
    dialog.setColor(0x3399FF);  // a colour of the honeycomb
    QColor background;
    const QWindow* stacksOver = nullptr;
    const auto user = WhenShown(QStringLiteral("frmPopup"), [&](QtFormWindow& window) {
      background = window.grab().toImage().pixelColor(1, 1);
      stacksOver = window.windowHandle()->transientParent();
      QTest::mouseClick(window.children().findButton(QStringLiteral("cmdButton"), 0), Qt::LeftButton);
    });

    const QVariantList result = dialog.exec();

    QVERIFY(user.ended());
    QCOMPARE(background, dark);
    QCOMPARE(stacksOver, owner.windowHandle());
    QCOMPARE(result.size(), 5);
    QCOMPARE(result.mid(0, 2), (QVariantList{true, 0x3399FF}));
  }

  // The width is the container's, the height the font's; QWidget::setEnabled on the combo
  // reaches its Enabled, a disabled window does not.
  void sizeAndEnabledFollowTheWidget() {
    Form form;
    form.Show();
    const int height = form.combo->height();
    form.combo->resize(250, 80);
    QCOMPARE(form.combo->size(), QSize(250, height));
    QCOMPARE(form.combo->surface()->width(), 250);
    QFont larger = form.combo->Font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    form.combo->setComboFont(larger);
    QVERIFY(form.combo->height() > height);

    form.window.setEnabled(false);
    QVERIFY(form.combo->Enabled());
    form.window.setEnabled(true);
    form.combo->setEnabled(false);
    QVERIFY(!form.combo->Enabled());
    form.combo->Refresh();  // the control's redraw applies its own setting: still disabled
    QVERIFY(!form.combo->isEnabled());
  }
};

QTEST_MAIN(ColorComboWidgetTest)
#include "color_combo_widget_test.moc"
