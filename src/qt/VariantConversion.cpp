#include "qt/VariantConversion.h"

#include <cmath>
#include <limits>

namespace LumoColorCombo::host {
namespace {

const QString kName = QStringLiteral("Name");
const QString kSize = QStringLiteral("Size");
const QString kBold = QStringLiteral("Bold");
const QString kItalic = QStringLiteral("Italic");
const QString kUnderline = QStringLiteral("Underline");
const QString kStrikethrough = QStringLiteral("Strikethrough");

bool IsBool(const QVariant& value) { return value.typeId() == QMetaType::Bool; }

}  // namespace

QVariant VariantConversion::toQVariant(const lumo::Variant& value) {
  if (value.IsBoolean()) return value.ToBoolean();
  if (value.IsLong()) return static_cast<int>(value.ToLong());
  if (value.IsText()) return QString::fromStdString(value.ToText());
  if (value.IsFont()) return fontToMap(value.ToFont());
  return {};
}

std::optional<lumo::Variant> VariantConversion::fromQVariant(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr: return lumo::Variant();
    case QMetaType::Bool: return lumo::Variant(value.toBool());
    case QMetaType::QString: return lumo::Variant(value.toString().toStdString());
    case QMetaType::QVariantMap: {
      const std::optional<lumo::StdFont> font = fontFromMap(value.toMap());
      if (!font) return std::nullopt;
      return lumo::Variant(*font);
    }
    default: return numberFrom(value);
  }
}

std::optional<lumo::Variant> VariantConversion::numberFrom(const QVariant& value) {
  bool ok = false;
  const double number = value.toDouble(&ok);
  if (!ok || value.typeId() == QMetaType::QString) return std::nullopt;
  const bool whole = std::trunc(number) == number;
  const bool inRange = number >= std::numeric_limits<std::int32_t>::min() &&
                       number <= std::numeric_limits<std::int32_t>::max();
  if (!whole || !inRange) return std::nullopt;
  return lumo::Variant(static_cast<std::int32_t>(number));
}

QVariantMap VariantConversion::fontToMap(const lumo::StdFont& font) {
  return {{kName, QString::fromStdString(font.Name)}, {kSize, font.Size},
          {kBold, font.Bold},                        {kItalic, font.Italic},
          {kUnderline, font.Underline},              {kStrikethrough, font.Strikethrough}};
}

std::optional<lumo::StdFont> VariantConversion::fontFromMap(const QVariantMap& map) {
  const QVariant name = map.value(kName);
  bool sizeOk = false;
  const double size = map.value(kSize).toDouble(&sizeOk);
  if (name.typeId() != QMetaType::QString || !sizeOk) return std::nullopt;
  lumo::StdFont font;
  font.Name = name.toString().toStdString();
  font.Size = size;
  // A missing style flag is the plain style; one of the wrong kind damages the font.
  for (const auto& [key, flag] : {std::pair{kBold, &font.Bold}, std::pair{kItalic, &font.Italic},
                                  std::pair{kUnderline, &font.Underline},
                                  std::pair{kStrikethrough, &font.Strikethrough}}) {
    const QVariant stored = map.value(key);
    if (!stored.isValid()) continue;
    if (!IsBool(stored)) return std::nullopt;
    *flag = stored.toBool();
  }
  return font;
}

}  // namespace LumoColorCombo::host
