// What a host enumerating the widgets' meta-objects finds: the published members and
// events in their order, by-reference arguments as references, the enumerations, and
// properties that each reach their own control member and survive the form file.
#include <QMetaMethod>
#include <QMetaProperty>
#include <QtTest>

#include <functional>
#include <map>
#include <memory>

#include "colormodel/TypeLibrary.h"
#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include <LumoColorCombo/ColorSample.h>

namespace {

struct Widget {
  const QMetaObject* meta;
  std::function<std::unique_ptr<QWidget>()> make;
  std::function<QVariantMap(const QWidget&)> write;
  std::function<void(QWidget&, const QVariantMap&)> read;
};

template <class W>
Widget Of() {
  return {&W::staticMetaObject, [] { return std::make_unique<W>(); },
          [](const QWidget& w) { return static_cast<const W&>(w).writeProperties(); },
          [](QWidget& w, const QVariantMap& bag) { static_cast<W&>(w).readProperties(bag); }};
}

// Every published widget, by its published name.
const std::map<QString, Widget>& Widgets() {
  static const std::map<QString, Widget> widgets{{"ColorCombo", Of<LumoColorCombo::ColorCombo>()},
                                                 {"ColorBox", Of<LumoColorCombo::ColorBox>()},
                                                 {"ColorHexagon", Of<LumoColorCombo::ColorHexagon>()},
                                                 {"ColorSample", Of<LumoColorCombo::ColorSample>()}};
  return widgets;
}

// A value of the property's type that differs from `current`.
QVariant Other(const QMetaProperty& property, const QVariant& current) {
  if (property.isEnumType()) {
    const QMetaEnum e = property.enumerator();
    for (int i = 0; i < e.keyCount(); ++i) {
      const int value = e.value(i);  // the enumerations are 32-bit
      if (value != current.toInt()) return QVariant(property.metaType(), &value);
    }
  }
  switch (property.metaType().id()) {
    case QMetaType::Bool: return !current.toBool();
    case QMetaType::QString: return current.toString() + "x";
    case QMetaType::Int: return current.toInt() == 0x123456 ? 0x654321 : 0x123456;
    case QMetaType::QFont: {
      QFont font = current.value<QFont>();
      font.setBold(!font.bold());
      font.setPointSize(font.pointSize() + 3);
      return font;
    }
    default: return {};
  }
}

}  // namespace

class PublishedInterfaceTest : public QObject {
  Q_OBJECT

 private slots:
  void widgetPublishesItsMembersAndEventsInOrder_data() {
    QTest::addColumn<QString>("name");
    for (const auto& [name, widget] : Widgets()) QTest::newRow(qPrintable(name)) << name;
  }

  void widgetPublishesItsMembersAndEventsInOrder() {
    QFETCH(QString, name);
    const auto& published = lumo::TypeLibrary::Control(name.toStdString());
    const QMetaObject& meta = *Widgets().at(name).meta;
    QStringList properties, methods, events, metaProperties, metaMethods, metaSignals;
    for (const auto& member : published.Members) {
      (member.Access == lumo::MemberAccess::Method ? methods : properties) << QString::fromStdString(member.Name);
    }
    for (const auto& event : published.Events) {
      QStringList arguments;
      for (const auto& argument : event.Arguments) {
        arguments << QString::fromStdString(argument.Name) + (argument.ByRef ? "&" : "");
      }
      events << QString::fromStdString(event.Name) + "(" + arguments.join(',') + ")";
    }
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) metaProperties << meta.property(i).name();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
      const QMetaMethod method = meta.method(i);
      QStringList arguments;
      for (int a = 0; a < method.parameterCount(); ++a) {
        // A by-reference argument is a non-const reference, so a direct slot can change it.
        const bool byRef = method.parameterTypeName(a).endsWith('&');
        arguments << QString::fromLatin1(method.parameterNames().at(a)) + (byRef ? "&" : "");
      }
      if (method.methodType() == QMetaMethod::Signal) metaSignals << method.name() + "(" + arguments.join(',') + ")";
      if (method.methodType() == QMetaMethod::Method) metaMethods << method.name();
    }
    // What a widget adds for Qt (the container's change notice, the combo's USER colour)
    // comes after the published members, which keep their order first.
    QCOMPARE(metaProperties.mid(0, properties.size()), properties);
    QCOMPARE(metaSignals.mid(0, events.size()), events);
    QCOMPARE(metaMethods, methods);
    for (const QString& added : metaProperties.mid(properties.size()) + metaSignals.mid(events.size())) {
      QVERIFY2(!properties.contains(added) && !events.contains(added), qPrintable(added));
    }
  }

  void eachPropertyReachesItsMemberAndSurvivesTheFormFile_data() { widgetPublishesItsMembersAndEventsInOrder_data(); }

  void eachPropertyReachesItsMemberAndSurvivesTheFormFile() {
    QFETCH(QString, name);
    const Widget& widget = Widgets().at(name);
    const std::unique_ptr<QWidget> fresh = widget.make();
    QVERIFY(widget.write(*fresh).isEmpty());  // values equal to their default are left out
    const std::unique_ptr<QWidget> source = widget.make();
    const QMetaObject& meta = *widget.meta;
    // The published properties come first; what a widget adds for Qt is derived from them.
    int end = meta.propertyOffset();
    for (const auto& member : lumo::TypeLibrary::Control(name.toStdString()).Members) {
      if (member.Access != lumo::MemberAccess::Method) ++end;
    }
    for (int i = meta.propertyOffset(); i < end; ++i) {
      const QMetaProperty property = meta.property(i);
      if (!property.isWritable()) continue;
      const QVariant value = Other(property, property.read(source.get()));
      QVERIFY2(value.isValid(), property.name());
      QVERIFY(property.write(source.get(), value));
      QVERIFY2(property.read(source.get()) == value, property.name());
    }
    const std::unique_ptr<QWidget> copy = widget.make();
    widget.read(*copy, widget.write(*source));
    for (int i = meta.propertyOffset(); i < end; ++i) {
      const QMetaProperty property = meta.property(i);
      if (property.isWritable()) QVERIFY2(property.read(copy.get()) == property.read(source.get()), property.name());
    }
    QCOMPARE(copy->size(), source->size());
  }

  // Item views edit a colour through the combo's USER property and its notify signal.
  void comboPublishesItsColourAsTheUserProperty() {
    const QMetaProperty user = LumoColorCombo::ColorCombo::staticMetaObject.userProperty();
    QCOMPARE(user.metaType(), QMetaType::fromType<QColor>());
    QCOMPARE(user.notifySignal().name(), QByteArray("currentColorChanged"));
    LumoColorCombo::ColorCombo combo;
    QVERIFY(user.write(&combo, QColor(Qt::red)));
    QCOMPARE(combo.Color(), LumoColorCombo::OLE_COLOR(0x0000FF));
    QCOMPARE(user.read(&combo).value<QColor>(), QColor(Qt::red));  // a colour, no longer automatic
  }

  void enumerationsCarryThePublishedNamesAndValues() {
    const QMetaObject& meta = LumoColorCombo::staticMetaObject;
    QStringList published, found;
    for (const auto& e : lumo::TypeLibrary::Enums()) {
      for (const auto& c : e.Constants) published << QString("%1.%2=%3").arg(e.Name.c_str(), c.Name.c_str()).arg(c.Value);
    }
    for (int i = meta.enumeratorOffset(); i < meta.enumeratorCount(); ++i) {
      const QMetaEnum e = meta.enumerator(i);
      for (int k = 0; k < e.keyCount(); ++k) found << QString("%1.%2=%3").arg(e.name(), e.key(k)).arg(e.value(k));
    }
    QCOMPARE(found, published);
  }
};

QTEST_MAIN(PublishedInterfaceTest)
#include "published_interface_test.moc"
