#pragma once

#include <cstdint>
#include <string>

#include "colormodel/StdFont.h"
#include "colormodel/Variant.h"

namespace lumo {

// The host's store of a control's persisted properties (its form file).
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;

  // The stored value of the key, or `defaultValue` when it is absent.
  virtual Variant ReadProperty(const std::string& key, const Variant& defaultValue) const = 0;
  // Stores the value; a value equal to `defaultValue` may be left out.
  virtual void WriteProperty(const std::string& key, const Variant& value,
                             const Variant& defaultValue) = 0;

  // Typed reads for the controls: an absent value gives the default; a value that
  // does not convert to the wanted kind raises the conversion's error (a type
  // mismatch or an overflow), so the reading control reports the damaged form file.
  bool ReadBoolean(const std::string& key, bool defaultValue) const;
  std::int32_t ReadLong(const std::string& key, std::int32_t defaultValue) const;
  std::string ReadText(const std::string& key, const std::string& defaultValue) const;
  StdFont ReadFont(const std::string& key, const StdFont& defaultValue) const;
};

}  // namespace lumo
