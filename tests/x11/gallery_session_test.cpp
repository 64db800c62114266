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
#include "HoneycombPage.h"
#include "PalettesPage.h"
#include "ShownForms.h"
#include "WhenReady.h"
#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/ColorSample.h>

using namespace LumoColorCombo;

using ShownForms::CentreOf;
using ShownForms::ClickCell;
using ShownForms::Find;

namespace {

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
    if (host::QtFormWindow* dropdown = Find("frmDropdown")) dropdown->Unload();
  });

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
    WhenReady dialog([] { return Find("frmPopup") != nullptr && Find("frmPopup")->isActiveWindow(); }, [&] {
      host::QtFormWindow& form = *Find("frmPopup");
      // Beside the spot just clicked on the page.
      picked = ClickCell(*form.children().findSurface("ColorHexagon1"), QPoint(1, 1));
      ServerInput::Click(CentreOf(*form.children().findButton("cmdButton", 0)));
    });
    picked = -1;
    for (QPushButton* button : shown.findChildren<QPushButton*>()) {
      if (button->text() == "More Colors...") ServerInput::Click(CentreOf(*button));
    }
    QTRY_VERIFY(picked != -1 && !Find("frmPopup"));
    QTRY_COMPARE(hexagon.Color(), picked);
  }
  if (page == "Sample") {
    // The text colour's combo, a cell of its drop-down, and the sample shows it.
    WhenReady inDropdown([] { return Find("frmDropdown") != nullptr; }, [&] {
      picked = ClickCell(*Find("frmDropdown")->children().findSurface("ColorBox1"));
    });
    ServerInput::Click(CentreOf(*FirstShown<ColorCombo>(shown)));
    QTRY_VERIFY(picked != -1 && !Find("frmDropdown"));
    QTRY_COMPARE(FirstShown<ColorSample>(shown)->ForeColor(), picked);
  }
  Photograph(page);
}

QTEST_MAIN(GallerySessionTest)
#include "gallery_session_test.moc"
