#pragma once

#include <map>
#include <string>
#include <vector>

#include "colormodel/PropertyBag.h"

namespace lumo::testing {

// An in-memory form file. Like the Qt host's, it leaves out values equal to their
// default, and it records the order in which keys were read and written.
class MemoryPropertyBag : public PropertyBag {
 public:
  Variant ReadProperty(const std::string& key, const Variant& defaultValue) const override {
    ReadOrder.push_back(key);
    const auto found = Values.find(key);
    return found == Values.end() ? defaultValue : found->second;
  }
  void WriteProperty(const std::string& key, const Variant& value, const Variant& defaultValue) override {
    WriteOrder.push_back(key);
    if (value == defaultValue) {
      Values.erase(key);
    } else {
      Values[key] = value;
    }
  }

  std::map<std::string, Variant> Values;
  mutable std::vector<std::string> ReadOrder;
  std::vector<std::string> WriteOrder;
};

}  // namespace lumo::testing
