#include "colormodel/PropertyBag.h"

namespace lumo {
namespace {

// The conversion's error is not caught here: a stored value that does not convert is
// damage, which the reading control's UserControl_ReadProperties reports.
template <class T, class Convert>
T ReadOr(const PropertyBag& bag, const std::string& key, const T& defaultValue, Convert convert) {
  return convert(bag.ReadProperty(key, Variant(defaultValue)));
}

}  // namespace

bool PropertyBag::ReadBoolean(const std::string& key, bool defaultValue) const {
  return ReadOr(*this, key, defaultValue, [](const Variant& v) { return v.ToBoolean(); });
}

std::int32_t PropertyBag::ReadLong(const std::string& key, std::int32_t defaultValue) const {
  return ReadOr(*this, key, defaultValue, [](const Variant& v) { return v.ToLong(); });
}

std::string PropertyBag::ReadText(const std::string& key, const std::string& defaultValue) const {
  return ReadOr(*this, key, defaultValue, [](const Variant& v) { return v.ToText(); });
}

StdFont PropertyBag::ReadFont(const std::string& key, const StdFont& defaultValue) const {
  return ReadOr(*this, key, defaultValue, [](const Variant& v) { return v.ToFont(); });
}

}  // namespace lumo
