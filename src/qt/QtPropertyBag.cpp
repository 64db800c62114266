#include "qt/QtPropertyBag.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "qt/VariantConversion.h"

namespace LumoColorCombo::host {

lumo::Variant QtPropertyBag::ReadProperty(const std::string& key, const lumo::Variant& defaultValue) const {
  const auto found = values_.constFind(QString::fromStdString(key));
  if (found == values_.constEnd()) return defaultValue;
  // A stored value of no kind the controls know is as good as absent.
  return VariantConversion::fromQVariant(*found).value_or(defaultValue);
}

void QtPropertyBag::WriteProperty(const std::string& key, const lumo::Variant& value,
                                  const lumo::Variant& defaultValue) {
  const QString name = QString::fromStdString(key);
  if (value == defaultValue) {
    values_.remove(name);
  } else {
    values_.insert(name, VariantConversion::toQVariant(value));
  }
}

QString QtPropertyBag::toText() const {
  return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(values_)).toJson(QJsonDocument::Indented));
}

QtPropertyBag QtPropertyBag::fromText(const QString& text) {
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
  if (error.error != QJsonParseError::NoError || !document.isObject()) return {};
  return QtPropertyBag(document.object().toVariantMap());
}

}  // namespace LumoColorCombo::host
