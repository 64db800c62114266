#include "colormodel/PropertyBag.h"

#include <exception>

namespace lumo {
namespace {

template <class T, class Convert>
T ReadOr(const PropertyBag& bag, const std::string& key, const T& defaultValue, Convert convert) {
  try {
    return convert(bag.ReadProperty(key, Variant(defaultValue)));
  } catch (const std::exception&) {
    return defaultValue;
  }
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
