#include <QtTest>

#include "colormodel/StdFont.h"
#include "colormodel/Types.h"
#include "colormodel/Variant.h"
#include "qt/QtPropertyBag.h"

using LumoColorCombo::host::QtPropertyBag;

Q_DECLARE_METATYPE(lumo::Variant)

namespace {

lumo::StdFont BoldArial() {
  lumo::StdFont font;
  font.Name = "Arial";
  font.Size = 9.75;
  font.Bold = true;
  font.Strikethrough = true;
  return font;
}

}  // namespace

class PropertyBagTest : public QObject {
  Q_OBJECT

 private slots:
  void savedValueReadsBackFromText_data() {
    QTest::addColumn<lumo::Variant>("value");
    QTest::addColumn<lumo::Variant>("defaultValue");
    QTest::newRow("boolean") << lumo::Variant(true) << lumo::Variant(false);
    QTest::newRow("negative number") << lumo::Variant(std::int32_t{-2147483647 - 1}) << lumo::Variant(std::int32_t{5});
    QTest::newRow("text") << lumo::Variant("Grün, \"quoted\"\r\nsecond line") << lumo::Variant("Automatic");
    QTest::newRow("text of digits stays text") << lumo::Variant("42") << lumo::Variant("");
    QTest::newRow("font") << lumo::Variant(BoldArial()) << lumo::Variant(lumo::StdFont{});
    QTest::newRow("empty over a default") << lumo::Variant() << lumo::Variant(std::int32_t{7});
    QTest::newRow("number equal to its default") << lumo::Variant(std::int32_t{-1}) << lumo::Variant(std::int32_t{-1});
  }
  void savedValueReadsBackFromText() {
    QFETCH(lumo::Variant, value);
    QFETCH(lumo::Variant, defaultValue);
    QtPropertyBag saved;
    saved.WriteProperty("Prop", lumo::Variant("an earlier value"), lumo::Variant());
    saved.WriteProperty("Prop", value, defaultValue);
    const QtPropertyBag loaded = QtPropertyBag::fromText(saved.toText());
    // A value equal to its default is left out, so the default reads back.
    QCOMPARE(loaded.values().contains(QStringLiteral("Prop")), !(value == defaultValue));
    QVERIFY(loaded.ReadProperty("Prop", defaultValue) == value);
  }

  void damagedTextGivesDefaults_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("not JSON") << QStringLiteral("{\"Style\": 3, \"Font\": {\"Name\"");
    QTest::newRow("not an object") << QStringLiteral("[1, 2, 3]");
    QTest::newRow("wrong kinds") << QStringLiteral(
        R"({"Style": [1], "Enabled": {"a": 1}, "Caption": {"x": true}, "Font": [12], "Color": 1.5})");
    QTest::newRow("damaged font") << QStringLiteral(R"({"Font": {"Name": "Arial", "Size": "big", "Bold": "yes"}})");
  }
  void damagedTextGivesDefaults() {
    QFETCH(QString, text);
    const QtPropertyBag bag = QtPropertyBag::fromText(text);
    QCOMPARE(bag.ReadLong("Style", 3), 3);
    QCOMPARE(bag.ReadLong("Color", lumo::sys::ButtonFace), lumo::sys::ButtonFace);
    QCOMPARE(bag.ReadBoolean("Enabled", true), true);
    QCOMPARE(bag.ReadText("Caption", "Automatic"), std::string("Automatic"));
    QVERIFY(bag.ReadFont("Font", BoldArial()) == BoldArial());
  }
};

QTEST_GUILESS_MAIN(PropertyBagTest)
#include "property_bag_test.moc"
