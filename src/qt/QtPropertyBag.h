#pragma once

#include <QString>
#include <QVariantMap>

#include "colormodel/PropertyBag.h"

namespace LumoColorCombo::host {

// A control's saved properties as a QVariantMap, one key per property. Like every form
// file of the library it leaves out a value equal to its default, so a control saved
// with its defaults produces an empty bag. It saves to and loads from text (JSON) so a
// form's properties can be kept in a file; text that is not a saved bag loads as an
// empty one, and the controls' typed reads then fall back to their defaults.
class QtPropertyBag : public lumo::PropertyBag {
 public:
  QtPropertyBag() = default;
  explicit QtPropertyBag(QVariantMap values) : values_(std::move(values)) {}

  lumo::Variant ReadProperty(const std::string& key, const lumo::Variant& defaultValue) const override;
  void WriteProperty(const std::string& key, const lumo::Variant& value,
                     const lumo::Variant& defaultValue) override;

  const QVariantMap& values() const { return values_; }
  void setValues(QVariantMap values) { values_ = std::move(values); }

  QString toText() const;
  static QtPropertyBag fromText(const QString& text);

 private:
  QVariantMap values_;
};

}  // namespace LumoColorCombo::host
