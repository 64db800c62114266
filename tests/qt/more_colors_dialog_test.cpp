// End to end: the real "More Colors" dialog, driven through its widgets while its
// modal loop runs.
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>
#include <QtTest>
#include <functional>

#include "InsideModalLoop.h"

#include <LumoColorCombo/MoreColorsDialog.h>
#include "qt/SurfaceWidget.h"

using LumoColorCombo::MoreColorsDialog;
using LumoColorCombo::host::SurfaceWidget;

namespace {

QWidget* OpenDialog() {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && top->findChild<QLineEdit*>(QStringLiteral("txtColor")) != nullptr) return top;
  }
  return nullptr;
}

// Runs the dialog; `user` acts on it from inside its modal loop and ends it.
QVariantList RunDialog(MoreColorsDialog& dialog, const std::function<void(QWidget&)>& user) {
  const InsideModalLoop<QWidget> inside(user, OpenDialog);
  const QVariantList result = dialog.exec();
  if (!inside.ended()) qWarning("the dialog never opened or stayed open");
  return inside.ended() ? result : QVariantList();
}

QColor Centre(const SurfaceWidget& swatch) {
  const QImage& image = swatch.image();
  return QColor(image.pixel(image.width() / 2, image.height() / 2));
}

void Click(QWidget& window, const char* button) {
  auto* found = window.findChild<QPushButton*>(QString::fromLatin1(button));
  QVERIFY2(found != nullptr, button);
  QTest::mouseClick(found, Qt::LeftButton);
}

}  // namespace

class MoreColorsDialogTest : public QObject {
  Q_OBJECT

 private slots:
  // Given a widget, the dialog belongs to its window rather than to the active one: it
  // stands over it in its palette. Ok right after opening hands back what the caller set.
  void outcomeOfEachWayOfClosing_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<bool>("committed");
    QTest::newRow("Ok") << "cmdButton(0)" << 5 << true;
    QTest::newRow("Cancel") << "cmdButton(1)" << 5 << false;
    QTest::newRow("title bar") << "" << 2 << false;
  }

  void outcomeOfEachWayOfClosing() {
    QFETCH(QString, action);
    QFETCH(int, slotCount);
    QFETCH(bool, committed);
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
    const QVariantList result = RunDialog(dialog, [&](QWidget& window) {
      background = window.grab().toImage().pixelColor(1, 1);
      stacksOver = window.windowHandle()->transientParent();
      if (action.isEmpty()) {
        window.close();
      } else {
        Click(window, action.toLatin1().constData());
      }
    });
    QCOMPARE(background, dark);
    QCOMPARE(stacksOver, owner.windowHandle());
    QCOMPARE(result.size(), slotCount);
    QCOMPARE(result.value(0).toBool(), committed);
    QCOMPARE(result.value(1), committed ? QVariant(0x3399FF) : QVariant());
  }

  void typingAColourAndLeavingTheBoxPaintsTheNewSwatchBesideTheCallersColour() {
    MoreColorsDialog dialog;
    dialog.setIsAutomatic(false);
    dialog.setColor(0x000000);
    dialog.setCurrentColor(0x00FF00);  // green
    QColor swatch, current;
    QString shownText;
    const QVariantList result = RunDialog(dialog, [&](QWidget& window) {
      auto* field = window.findChild<QLineEdit*>(QStringLiteral("txtColor"));
      QVERIFY(field != nullptr);
      QApplication::setActiveWindow(&window);
      field->setFocus();
      field->selectAll();
      QTest::keyClicks(field, QStringLiteral("ff,0,0"));
      QTest::keyClick(field, Qt::Key_Tab);  // leaves the box
      swatch = Centre(*window.findChild<SurfaceWidget*>(QStringLiteral("picNew")));
      current = Centre(*window.findChild<SurfaceWidget*>(QStringLiteral("picCurrent")));
      shownText = field->text();
      Click(window, "cmdButton(0)");
    });
    QCOMPARE(swatch, QColor(Qt::red));
    QCOMPARE(current, QColor(Qt::green));
    QCOMPARE(shownText, QString("Hex={FF,00,00}"));
    QCOMPARE(result.value(1).toInt(), 0x0000FF);  // red, stored blue-high
    QCOMPARE(result.value(2).toBool(), false);
  }
};

QTEST_MAIN(MoreColorsDialogTest)
#include "more_colors_dialog_test.moc"
