// A person's session with the gallery on an X server: on each page, one click through
// the server picks a colour, and the page shows it. A screenshot of the screen after
// each page's pick goes to the working folder (gallery-x11-<page>.png).
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "EventLog.h"
#include "GalleryWindow.h"
#include "GridSpots.h"
#include "HoneycombPage.h"
#include "PalettesPage.h"
#include "ServerInput.h"
#include "WhenReady.h"
#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/ColorSample.h>
#include "qt/QtFormWindow.h"
#include "qt/SurfaceWidget.h"

using namespace LumoColorCombo;

namespace {

// The library's window of that form, once it is up on the screen.
host::QtFormWindow* ShownForm(const char* name) {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<host::QtFormWindow*>(top);
    if (form != nullptr && form->formName() == QLatin1String(name) && form->isVisible() &&
        form->windowHandle()->isExposed()) {
      return form;
    }
  }
  return nullptr;
}

QPoint CentreOf(const QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }

// Clicks a cell of a drawn grid or honeycomb; answers the colour under the click.
OLE_COLOR ClickCell(const host::SurfaceWidget& surface) {
  const QImage picture = surface.image();
  const QPoint cell = GridSpots::CellSpot(picture);
  ServerInput::Click(surface.mapToGlobal(cell));
  return GridSpots::ColorAt(picture, cell);
}

// The screen shows the window just as it draws itself: nothing left over on top of it
// (a closed drop-down or dialog not yet repainted over) and every change painted.
bool ScreenShows(QWidget& window) {
  const QImage drawn = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QImage shown = window.screen()->grabWindow(0, window.x(), window.y(), window.width(), window.height())
                           .toImage()
                           .convertToFormat(QImage::Format_RGB32);
  return drawn == shown;
}

template <class Widget>
Widget* FirstShown(const QWidget& page) {
  for (Widget* widget : page.findChildren<Widget*>()) {
    if (widget->isVisible()) return widget;
  }
  return nullptr;
}

// Opens the combo with a click through the server and clicks a cell of its drop-down;
// answers the cell's colour once the drop-down has closed, or -1 if it never did.
OLE_COLOR PickThroughDropdown(const ColorCombo& combo) {
  OLE_COLOR picked = -1;
  WhenReady inDropdown([] { return ShownForm("frmDropdown") != nullptr; }, [&] {
    picked = ClickCell(*ShownForm("frmDropdown")->children().findSurface("ColorBox1"));
  });
  ServerInput::Click(CentreOf(combo));
  const bool closed = QTest::qWaitFor([&] { return picked != -1 && !ShownForm("frmDropdown"); });
  return closed ? picked : -1;
}

}  // namespace

class GallerySessionTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void onePickOnEachPage_data();
  void onePickOnEachPage();

 private:
  void OpenPage(const QString& title);
  void Photograph(const QString& page);

  GalleryWindow gallery_;
};

void GallerySessionTest::initTestCase() {
  gallery_.move(0, 0);
  gallery_.show();
  gallery_.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&gallery_));
}

void GallerySessionTest::OpenPage(const QString& title) {
  QTabBar* bar = gallery_.tabs()->tabBar();
  for (int i = 0; i < bar->count(); ++i) {
    if (bar->tabText(i) == title) ServerInput::Click(bar->mapToGlobal(bar->tabRect(i).center()));
  }
  QTRY_COMPARE(gallery_.tabs()->tabText(gallery_.tabs()->currentIndex()), title);
}

void GallerySessionTest::Photograph(const QString& page) {
  // The pointer out of the way, so no tooltip stays over the page.
  ServerInput::MoveTo(gallery_.screen()->geometry().bottomRight() - QPoint(10, 10));
  QTRY_VERIFY(ScreenShows(gallery_));
  const QPixmap screen = gallery_.screen()->grabWindow(0);
  QVERIFY(screen.save(QStringLiteral("gallery-x11-%1.png").arg(page.toLower())));
}

void GallerySessionTest::onePickOnEachPage_data() {
  QTest::addColumn<QString>("page");
  QTest::newRow("Combo") << "Combo";
  QTest::newRow("Palettes") << "Palettes";
  QTest::newRow("Honeycomb") << "Honeycomb";
  QTest::newRow("Sample") << "Sample";
}

void GallerySessionTest::onePickOnEachPage() {
  QFETCH(QString, page);
  OpenPage(page);
  QWidget& shown = *gallery_.tabs()->currentWidget();
  OLE_COLOR picked = -1;
  // Never hang in a window that ignored the user: close it, and the test fails.
  QTimer::singleShot(15000, &gallery_, [] {
    if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
    if (host::QtFormWindow* dropdown = ShownForm("frmDropdown")) dropdown->Unload();
  });

  if (page == "Combo") {
    ColorCombo& combo = *FirstShown<ColorCombo>(shown);
    picked = PickThroughDropdown(combo);
    QVERIFY(picked != -1);
    QCOMPARE(combo.Color(), picked);
  }
  if (page == "Palettes") {
    auto& palettes = static_cast<PalettesPage&>(shown);
    // The grid holds the mouse since the page showed it: a cell takes the first click.
    picked = ClickCell(*palettes.grid()->surface());
    QTRY_COMPARE(palettes.grid()->Color(), picked);
    // Then another palette, and a cell of it.
    QListWidget& chooser = *palettes.chooser();
    QListWidgetItem& palette40 = *chooser.findItems("cpsPalette40", Qt::MatchExactly).value(0);
    chooser.scrollToItem(&palette40);
    ServerInput::Click(chooser.viewport()->mapToGlobal(chooser.visualItemRect(&palette40).center()));
    QTRY_COMPARE(palettes.grid()->PickStyle(), cpsPalette40);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);  // the grid re-centred for its size
    picked = ClickCell(*palettes.grid()->surface());
    QTRY_COMPARE(palettes.grid()->Color(), picked);
    QVERIFY(gallery_.log()->toPlainText().contains("cpsPalette40: Click(" + GalleryWindow::rgbText(picked)));
  }
  if (page == "Honeycomb") {
    ColorHexagon& hexagon = *static_cast<HoneycombPage&>(shown).hexagon();
    picked = ClickCell(*hexagon.findChild<host::SurfaceWidget*>());
    QTRY_COMPARE(hexagon.Color(), picked);
    // The dialog: a cell of its own honeycomb and Ok, and the page's honeycomb takes it.
    OLE_COLOR inDialog = -1;
    WhenReady dialog([] { return ShownForm("frmPopup") != nullptr && ShownForm("frmPopup")->isActiveWindow(); }, [&] {
      host::QtFormWindow& form = *ShownForm("frmPopup");
      host::SurfaceWidget& honeycomb = *form.children().findSurface("ColorHexagon1");
      // Beside the spot just clicked on the page: Qt drops a move to where the pointer is.
      inDialog = GridSpots::ColorAt(honeycomb.image(), GridSpots::CellSpot(honeycomb.image()) + QPoint(1, 1));
      ServerInput::Click(honeycomb.mapToGlobal(GridSpots::CellSpot(honeycomb.image()) + QPoint(1, 1)));
      ServerInput::Click(CentreOf(*form.children().findButton("cmdButton", 0)));
    });
    for (QPushButton* button : shown.findChildren<QPushButton*>()) {
      if (button->text() == "More Colors...") ServerInput::Click(CentreOf(*button));
    }
    QTRY_VERIFY(inDialog != -1 && !ShownForm("frmPopup"));
    picked = inDialog;
    QTRY_COMPARE(hexagon.Color(), picked);
  }
  if (page == "Sample") {
    // The text colour's combo, a cell of its drop-down, and the sample shows it.
    ColorSample& sample = *FirstShown<ColorSample>(shown);
    picked = PickThroughDropdown(*FirstShown<ColorCombo>(shown));
    QVERIFY(picked != -1);
    QTRY_COMPARE(sample.ForeColor(), picked);
  }
  Photograph(page);
}

QTEST_MAIN(GallerySessionTest)
#include "gallery_session_test.moc"
