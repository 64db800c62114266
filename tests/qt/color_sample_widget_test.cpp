// A real ColorSample widget's pixels, and the About box it opens.
#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

#include "InsideModalLoop.h"
#include "qt/AboutDialog.h"
#include <LumoColorCombo/ColorSample.h>
#include "qt/SurfaceWidget.h"
#include "qt/Version.h"

using LumoColorCombo::ColorSample;
using LumoColorCombo::host::AboutDialog;

namespace {

// Whether `area` of the sample's drawing is all one colour.
bool Plain(const ColorSample& s, const QRect& area, const QColor& colour) {
  QImage plain(area.size(), s.surface()->image().format());
  plain.fill(colour);
  return s.surface()->image().copy(area) == plain;
}

// The bounding box of the text: the pixels inside the frame that are not background.
QRect Ink(const ColorSample& s) {
  const QImage& image = s.surface()->image();
  QRect ink;
  for (int y = 1; y < image.height() - 1; ++y) {
    for (int x = 1; x < image.width() - 1; ++x) {
      if (image.pixel(x, y) != image.pixel(1, 1)) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

}  // namespace

// Stands in for the browser: records what it is asked to open.
class UrlCatcher : public QObject {
  Q_OBJECT
 public slots:
  void open(const QUrl& url) { opened << url; }

 public:
  QList<QUrl> opened;
};

class ColorSampleWidgetTest : public QObject {
  Q_OBJECT

  QWidget form_;  // shown, so that a sample placed on it is resized at once

 private slots:
  void initTestCase() {
    form_.resize(400, 200);
    form_.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form_));
  }

  // Where the text goes is the core's arithmetic; here the glyphs land at the printed
  // position in the font's size, and the frame is the outermost pixels only.
  void drawsTheTextWhereItIsPrintedAndTheFrameOnlyForFixedSingle_data() {
    QTest::addColumn<int>("border");
    QTest::addColumn<int>("points");  // 0: the form's font
    QTest::addColumn<QColor>("edge");
    QTest::newRow("defaults: black frame") << 1 << 0 << QColor(Qt::black);
    QTest::newRow("bcNone, 24 pt") << 0 << 24 << QColor(Qt::white);
  }
  void drawsTheTextWhereItIsPrintedAndTheFrameOnlyForFixedSingle() {
    QFETCH(int, border);
    QFETCH(int, points);
    QFETCH(QColor, edge);
    ColorSample sample(&form_);
    sample.show();
    sample.setBorderStyle(LumoColorCombo::KDBorderConstants(border));
    if (points > 0) sample.setSampleFont(QFont(sample.font().family(), points));
    sample.resize(qRound(sample.surface()->TextWidth("Sample Text")) + 40,
                  qRound(sample.surface()->TextHeight("Sample Text")) + 40);
    const QRect ink = Ink(sample);  // the glyphs' own bearings aside, 20 pixels in
    QVERIFY2(qAbs(ink.left() - 20) <= 3 && ink.top() >= 20, qPrintable(QString::number(ink.left())));
    const qreal pixels = (points > 0 ? points : sample.Font().pointSizeF()) * 96 / 72;
    QVERIFY2(ink.height() > 0.6 * pixels && ink.height() < 1.3 * pixels, qPrintable(QString::number(ink.height())));
    const int right = sample.width() - 1, bottom = sample.height() - 1;
    for (const QRect& side : {QRect(0, 0, right, 1), QRect(1, bottom, right, 1), QRect(0, 1, 1, bottom), QRect(right, 0, 1, bottom)}) {
      QVERIFY(Plain(sample, side, edge));
    }
    QVERIFY(Plain(sample, QRect(1, 1, right - 1, 1), Qt::white));
  }

  void aboutBoxShowsTheVersionsAndSystemInfoAndOpensTheReleasesPage() {
    ColorSample sample(&form_);
    UrlCatcher browser;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "open");
    QString shown, info;
    const InsideModalLoop<AboutDialog> closer([&](AboutDialog& dialog) {
      QVERIFY(dialog.isModal());
      QCOMPARE(dialog.parentWidget(), &form_);
      for (const QLabel* label : dialog.findChildren<QLabel*>()) shown += label->text();
      QTest::mouseClick(dialog.findChild<QPushButton*>("systemInfo"), Qt::LeftButton);
      info = dialog.findChild<QPlainTextEdit*>("systemInfoText")->toPlainText();
      for (const char* button : {"copy", "checkForUpdates", "ok"}) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
      }
    });
    sample.AboutBox();
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
    QVERIFY(form_.findChildren<AboutDialog*>().isEmpty());  // gone once closed
  }
};

QTEST_MAIN(ColorSampleWidgetTest)
#include "color_sample_widget_test.moc"
