// End to end: a real, shown ColorBox widget driven with QTest mouse and key events.
#include <QtTest>

#include <LumoColorCombo/ColorBox.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::OLE_COLOR;

namespace {

// Centres of cells of the default grid (cpsStandard below the Automatic button).
const QPoint kBlackCentre(10, 28);  // cell 1
const QPoint kWhiteCentre(28, 28);  // cell 2
const QPoint kRedCentre(100, 46);   // cell 14
const QPoint kMoreColorsCentre(73, 66);

QString Hex(OLE_COLOR color) { return QString("%1").arg(static_cast<quint32>(color), 6, 16, QChar('0')); }

// Colours as plain RGB values, so that equal pixels compare equal however they were made.
QColor Pixel(const ColorBox& box, int x, int y) {
  const QImage& image = box.surface()->image();
  const qreal dpr = image.devicePixelRatio();
  return QColor(image.pixel(qRound(x * dpr), qRound(y * dpr)));
}

}  // namespace

class ColorBoxWidgetTest : public QObject {
  Q_OBJECT

 private:
  // The widget's events in the order they arrive (Resize, raised by every repaint, aside).
  QStringList log_;

  void Track(ColorBox& box) {
    log_.clear();
    connect(&box, &ColorBox::OverColor, this,
            [this](OLE_COLOR c, bool automatic) { log_ << QString("OverColor %1 %2").arg(Hex(c)).arg(automatic); });
    connect(&box, &ColorBox::Click, this, [this](OLE_COLOR& c, const QString& name, bool& automatic) {
      log_ << QString("Click %1 %2 %3").arg(Hex(c), name).arg(automatic);
    });
    connect(&box, &ColorBox::MoreColorClick, this, [this] { log_ << "MoreColorClick"; });
    connect(&box, &ColorBox::UserCancel, this, [this] { log_ << "UserCancel"; });
  }

  void ShowAndTrack(ColorBox& box) {
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Track(box);
  }

 private slots:
  void hoverRaisesOverColorForEachCellItEnters() {
    ColorBox box;
    ShowAndTrack(box);
    // Hover tracking sees only moves: start from a corner, off every cell and button.
    QTest::mouseMove(box.surface(), QPoint(0, 0));
    QTest::mouseMove(box.surface(), kBlackCentre);
    QTRY_COMPARE(log_, QStringList{"OverColor 000000 0"});
    QTest::mouseMove(box.surface(), kWhiteCentre);
    QTRY_COMPARE(log_, (QStringList{"OverColor 000000 0", "OverColor ffffff 0"}));
  }

  // Which press picks what is the core's; these rows prove each pick reaches its signal.
  void aClickRaisesTheSignalOfWhatItHits_data() {
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QString>("raised");
    QTest::newRow("a cell") << kRedCentre << "Click 0000ff Red 0";
    QTest::newRow("More Colors") << kMoreColorsCentre << "MoreColorClick";
  }

  void aClickRaisesTheSignalOfWhatItHits() {
    QFETCH(QPoint, at);
    QFETCH(QString, raised);
    ColorBox box;
    ShowAndTrack(box);
    QTest::mouseClick(box.surface(), Qt::LeftButton, {}, at);
    QCOMPARE(log_, QStringList{raised});
  }

  // The press lands elsewhere in the window and reaches the grid through its grab.
  void aPressOutsideTheControlCancels() {
    QWidget window;
    window.resize(400, 300);
    auto* box = new ColorBox(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(QWidget::mouseGrabber(), box->surface());
    Track(*box);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 250));
    QCOMPARE(log_, QStringList{"UserCancel"});
    // The release outside is a cancel of its own.
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 250));
    QCOMPARE(log_, (QStringList{"UserCancel", "UserCancel"}));
  }

  void snapsBackToItsContentSize() {
    ColorBox box;
    ShowAndTrack(box);
    const QSize content = box.size();
    QCOMPARE(content, box.surface()->size());
    QCOMPARE(content.width(), 146);
    box.resize(400, 300);
    QCOMPARE(box.size(), content);
  }

  void aNewPaletteRepaintsTheBackground() {
    ColorBox box;
    ShowAndTrack(box);
    const QColor dark(0x30, 0x30, 0x30);
    QVERIFY(Pixel(box, 0, 0) != dark);
    box.setPalette(QPalette(dark));
    QCOMPARE(Pixel(box, 0, 0), dark);
    QCOMPARE(Pixel(box, box.width() - 1, box.height() - 1), dark);
  }
};

QTEST_MAIN(ColorBoxWidgetTest)
#include "color_box_widget_test.moc"
