// End to end: a real, shown ColorBox widget driven with QTest mouse and key events.
#include <QMetaMethod>
#include <QMetaProperty>
#include <QtTest>

#include "colormodel/TypeLibrary.h"
#include "qt/ColorBox.h"
#include "qt/SurfaceWidget.h"

using LumoColorCombo::ColorBox;
using LumoColorCombo::OLE_COLOR;

namespace {

constexpr OLE_COLOR kButtonFace = static_cast<OLE_COLOR>(0x8000000F);
constexpr OLE_COLOR kButtonShadow = static_cast<OLE_COLOR>(0x80000010);
constexpr OLE_COLOR kButtonHighlight = static_cast<OLE_COLOR>(0x80000014);

// cpsStandard: 8 columns; cell 1 is Black, cell 2 White, cell 14 Red.
constexpr int kColumns = 8;
constexpr int kRedCell = 14;
constexpr OLE_COLOR kRed = 0x0000FF;

QString Hex(OLE_COLOR color) { return QString("%1").arg(static_cast<quint32>(color), 6, 16, QChar('0')); }

QString Signature(const QString& name, const QStringList& arguments) {
  return name + "(" + arguments.join(',') + ")";
}

// Height of one line of the surface's text plus its 4-pixel margin: the Automatic
// button's height, and how far it pushes the grid down.
int TextHeight(const ColorBox& box) { return qRound(box.surface()->TextHeight("A") + 4); }

// Top left of a cell's 12-pixel square: an 18-pixel pitch, the grid centred across the
// surface and 5 pixels below the top or below the Automatic button.
QPoint CellOrigin(const ColorBox& box, int index) {
  const int gridWidth = 12 * kColumns + 6 * (kColumns - 1);
  const int left = (box.surface()->width() - gridWidth) / 2;
  const int top = box.AllowAutomatic() ? TextHeight(box) + 5 : 5;
  return {left + (index - 1) % kColumns * 18, top + (index - 1) / kColumns * 18};
}

QPoint CellCentre(const ColorBox& box, int index) { return CellOrigin(box, index) + QPoint(6, 6); }

QPoint AutomaticCentre(const ColorBox& box) { return {box.surface()->width() / 2, 1 + TextHeight(box) / 2}; }

// Colours as plain RGB values, so that equal pixels compare equal however they were made.
QColor Pixel(const ColorBox& box, int x, int y) {
  const QImage& image = box.surface()->image();
  const qreal dpr = image.devicePixelRatio();
  return QColor(image.pixel(qRound(x * dpr), qRound(y * dpr)));
}

QColor Resolved(const ColorBox& box, OLE_COLOR color) { return QColor(box.surface()->resolve(color).rgb()); }

// Hover tracking sees only moves: start from a corner of the surface, off every
// cell and button, so that the pointer really moves whatever an earlier test left.
void PointAt(const ColorBox& box, QPoint position) {
  QTest::mouseMove(box.surface(), QPoint(0, 0));
  QTest::mouseMove(box.surface(), position);
}

// The one-pixel ring round a cell's 18 x 18 frame area, read at the middle of each side:
// "raised" (highlight above and left, shadow below and right), "sunken" (the reverse),
// "none" (background all round) or the colours found.
QString Ring(const ColorBox& box, int index) {
  const QPoint o = CellOrigin(box, index);
  const QColor top = Pixel(box, o.x() + 6, o.y() - 3);
  const QColor left = Pixel(box, o.x() - 3, o.y() + 6);
  const QColor bottom = Pixel(box, o.x() + 6, o.y() + 14);
  const QColor right = Pixel(box, o.x() + 14, o.y() + 6);
  const auto ring = [&](OLE_COLOR topLeft, OLE_COLOR bottomRight) {
    const QColor tl = Resolved(box, topLeft);
    const QColor br = Resolved(box, bottomRight);
    return top == tl && left == tl && bottom == br && right == br;
  };
  if (ring(kButtonHighlight, kButtonShadow)) return "raised";
  if (ring(kButtonShadow, kButtonHighlight)) return "sunken";
  if (ring(kButtonFace, kButtonFace)) return "none";
  return QStringList{top.name(), left.name(), bottom.name(), right.name()}.join(' ');
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
  void publishesTheMembersAndEventsInOrder() {
    const auto& published = lumo::TypeLibrary::Control("ColorBox");
    const QMetaObject& meta = ColorBox::staticMetaObject;

    QStringList properties;
    QStringList methods;
    for (const auto& member : published.Members) {
      (member.Access == lumo::MemberAccess::Method ? methods : properties) << QString::fromStdString(member.Name);
    }
    QStringList events;
    for (const auto& event : published.Events) {
      QStringList arguments;
      for (const auto& argument : event.Arguments) arguments << QString::fromStdString(argument.Name);
      events << Signature(QString::fromStdString(event.Name), arguments);
    }

    QStringList metaProperties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) metaProperties << meta.property(i).name();
    QStringList metaSignals;
    QStringList metaMethods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
      const QMetaMethod method = meta.method(i);
      QStringList arguments;
      for (const QByteArray& name : method.parameterNames()) arguments << name;
      if (method.methodType() == QMetaMethod::Signal) metaSignals << Signature(method.name(), arguments);
      if (method.methodType() == QMetaMethod::Method) metaMethods << method.name();
    }
    // The container's change notice comes after the published events.
    QCOMPARE(metaSignals.takeLast(), QString("propertyChanged(name)"));

    QCOMPARE(metaProperties, properties);
    QCOMPARE(metaSignals, events);
    QCOMPARE(metaMethods, methods);
  }

  void hoverRaisesOverColorAndMovesTheHotFrame() {
    ColorBox box;
    ShowAndTrack(box);
    PointAt(box, CellCentre(box, 1));
    QTRY_COMPARE(log_, QStringList{"OverColor 000000 0"});
    QCOMPARE(Ring(box, 1), QString("raised"));
    // On to the next cell through the gap between them, as a pointer goes.
    QTest::mouseMove(box.surface(), CellOrigin(box, 2) - QPoint(3, -6));
    QTest::mouseMove(box.surface(), CellCentre(box, 2));
    QTRY_COMPARE(log_, (QStringList{"OverColor 000000 0", "OverColor ffffff 0"}));
    QCOMPARE(Ring(box, 2), QString("raised"));
    QCOMPARE(Ring(box, 1), QString("none"));
  }

  void releaseOnACellClicksWithItsColourAndName() {
    ColorBox box;
    ShowAndTrack(box);
    // The colour and flag go out by reference; what a handler does to them stays there.
    connect(&box, &ColorBox::Click, this, [](OLE_COLOR& c, const QString&, bool& automatic) {
      c = 0x123456;
      automatic = true;
    }, Qt::DirectConnection);
    QTest::mouseClick(box.surface(), Qt::LeftButton, {}, CellCentre(box, kRedCell));
    QCOMPARE(log_, QStringList{"Click 0000ff Red 0"});
    QCOMPARE(box.Color(), kRed);
    QVERIFY(!box.IsAutomatic());
    QCOMPARE(box.ColorName(), QString("Red"));
  }

  void theAutomaticButtonReportsHoverAndClick() {
    ColorBox box;
    box.setIsAutomatic(false);
    ShowAndTrack(box);
    PointAt(box, AutomaticCentre(box));
    QTRY_COMPARE(log_, QStringList{"OverColor 000000 1"});
    QTest::mouseClick(box.surface(), Qt::LeftButton, {}, AutomaticCentre(box));
    QCOMPARE(log_, (QStringList{"OverColor 000000 1", "Click 663300  1"}));
    QVERIFY(box.IsAutomatic());
  }

  void keysMoveThroughTheCellsAndBothButtons_data() {
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("outcome");
    // The keyboard starts on the Automatic button; Left twice reaches the last cell.
    const QList<Qt::Key> last{Qt::Key_Left, Qt::Key_Left};
    QTest::newRow("escape") << QList<Qt::Key>{Qt::Key_Escape} << "UserCancel";
    QTest::newRow("enter on Automatic") << QList<Qt::Key>{Qt::Key_Return} << "Click 663300  1";
    QTest::newRow("left from Automatic: More Colors") << QList<Qt::Key>{Qt::Key_Left, Qt::Key_Return}
                                                       << "MoreColorClick";
    QTest::newRow("left from More Colors: last cell") << last + QList<Qt::Key>{Qt::Key_Return} << "Click 7f7f00 Teal 0";
    QTest::newRow("right from the last cell: More Colors")
        << last + QList<Qt::Key>{Qt::Key_Right, Qt::Key_Return} << "MoreColorClick";
    QTest::newRow("right from More Colors: Automatic")
        << last + QList<Qt::Key>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Enter} << "Click 663300  1";
    QTest::newRow("right from Automatic: cell 1")
        << last + QList<Qt::Key>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return}
        << "Click 000000 Black 0";
    QTest::newRow("left from cell 1: Automatic") << QList<Qt::Key>{Qt::Key_Right, Qt::Key_Left, Qt::Key_Return}
                                                  << "Click 663300  1";
    QTest::newRow("up from the first row: Automatic")
        << QList<Qt::Key>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Return} << "Click 663300  1";
    QTest::newRow("down a row") << QList<Qt::Key>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}
                                << "Click 00ffff Yellow 0";
    QTest::newRow("down from the last row: More Colors")
        << QList<Qt::Key>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return} << "MoreColorClick";
  }

  void keysMoveThroughTheCellsAndBothButtons() {
    QFETCH(QList<Qt::Key>, keys);
    QFETCH(QString, outcome);
    ColorBox box;
    box.setIsAutomatic(false);
    ShowAndTrack(box);
    for (const Qt::Key key : keys) QTest::keyClick(box.surface(), key);
    log_.removeIf([](const QString& entry) { return entry.startsWith("OverColor"); });
    QCOMPARE(log_, QStringList{outcome});
  }

  void aPressOutsideTheControlCancels_data() {
    QTest::addColumn<bool>("throughTheWindow");
    QTest::newRow("on the surface, left of and above it") << false;
    QTest::newRow("elsewhere in the window, through the grab") << true;
  }

  void aPressOutsideTheControlCancels() {
    QFETCH(bool, throughTheWindow);
    QWidget window;
    window.resize(400, 300);
    auto* box = new ColorBox(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(QWidget::mouseGrabber(), box->surface());
    Track(*box);
    if (throughTheWindow) {
      QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 250));
    } else {
      QTest::mousePress(box->surface(), Qt::LeftButton, {}, QPoint(-5, -5));
    }
    QCOMPARE(log_, QStringList{"UserCancel"});
    // The release outside is a cancel of its own.
    if (throughTheWindow) {
      QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 250));
    } else {
      QTest::mouseRelease(box->surface(), Qt::LeftButton, {}, QPoint(-5, -5));
    }
    QCOMPARE(log_, (QStringList{"UserCancel", "UserCancel"}));
  }

  void paintsEachCellWithItsFrame_data() {
    QTest::addColumn<OLE_COLOR>("color");
    QTest::addColumn<bool>("hover");
    QTest::addColumn<QString>("ring");
    QTest::newRow("plain") << OLE_COLOR(0x663300) << false << "none";
    QTest::newRow("selected: the Color property's cell") << kRed << false << "sunken";
    QTest::newRow("hot") << OLE_COLOR(0x663300) << true << "raised";
    QTest::newRow("hot and selected") << kRed << true << "raised";
  }

  void paintsEachCellWithItsFrame() {
    QFETCH(OLE_COLOR, color);
    QFETCH(bool, hover);
    QFETCH(QString, ring);
    ColorBox box;
    box.setColor(color);
    ShowAndTrack(box);
    if (hover) {
      PointAt(box, CellCentre(box, kRedCell));
      QTRY_COMPARE(log_.size(), 1);
    }
    QCOMPARE(Ring(box, kRedCell), ring);
    const QPoint centre = CellCentre(box, kRedCell);
    QCOMPARE(Pixel(box, centre.x(), centre.y()), QColor(Qt::red));
    // The square's outline is button shadow.
    const QPoint origin = CellOrigin(box, kRedCell);
    QCOMPARE(Pixel(box, origin.x(), origin.y() + 6), Resolved(box, kButtonShadow));
  }

  void etchesTheRowGapFromTheSurfacesLeftEdge() {
    ColorBox box;
    box.setAllowAutomatic(false);
    box.setPickStyle(LumoColorCombo::cpsStandardWithBW);
    ShowAndTrack(box);
    // The gap sits above the third row: y = 1 + 2 rows of 18 + 2; the line runs the
    // grid's width (138) from x = 1, not from the centred grid's left.
    const int y = 1 + 2 * 18 + 2;
    const QColor shadow = Resolved(box, kButtonShadow);
    const QColor highlight = Resolved(box, kButtonHighlight);
    const QColor face = Resolved(box, kButtonFace);
    for (int x = 1; x < 1 + 138; ++x) {
      QCOMPARE(Pixel(box, x, y), shadow);
      QCOMPARE(Pixel(box, x, y + 1), highlight);
    }
    QCOMPARE(Pixel(box, 0, y), face);
    QCOMPARE(Pixel(box, 139, y), face);
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

  void persistedPropertiesRoundTrip() {
    ColorBox source;
    source.setPickStyle(LumoColorCombo::cpsPalette40);
    source.setColor(kRed);
    source.setIsAutomatic(false);
    source.setAutoColor(0x00FF00);
    source.setAutomaticText("Auto");
    source.setMoreColorsText("Other...");
    source.setAllowAutomatic(false);
    source.setAllowMoreColors(false);
    ColorBox copy;
    copy.readProperties(source.writeProperties());
    const ColorBox fresh;
    const QMetaObject& meta = ColorBox::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
      const QMetaProperty property = meta.property(i);
      if (!property.isWritable()) continue;
      QVERIFY2(property.read(&source) != property.read(&fresh), property.name());
      QCOMPARE(property.read(&copy), property.read(&source));
    }
    QCOMPARE(copy.size(), source.size());
  }
};

QTEST_MAIN(ColorBoxWidgetTest)
#include "color_box_widget_test.moc"
