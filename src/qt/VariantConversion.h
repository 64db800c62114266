#pragma once

#include <optional>

#include <QVariant>

#include "colormodel/Variant.h"

namespace LumoColorCombo::host {

// The one place where core values and Qt values meet: empty, boolean, 32-bit number,
// UTF-8 text and font on one side; an invalid QVariant, bool, int, QString and a font
// as a nested QVariantMap on the other. Numbers that went through JSON (as qlonglong or
// double) come back as 32-bit numbers when they are whole and in range.
class VariantConversion {
 public:
  static QVariant toQVariant(const lumo::Variant& value);
  // Nothing for a value of no kind the core knows (a list, a fraction, a damaged font).
  static std::optional<lumo::Variant> fromQVariant(const QVariant& value);

  static QVariantMap fontToMap(const lumo::StdFont& font);
  static std::optional<lumo::StdFont> fontFromMap(const QVariantMap& map);

 private:
  static std::optional<lumo::Variant> numberFrom(const QVariant& value);
};

}  // namespace LumoColorCombo::host
