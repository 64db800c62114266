#include "colormodel/Globals.h"

#include "colormodel/CommonGlobals.h"
#include "colormodel/TextRules.h"

namespace lumo {
namespace {
constexpr const char* kModule = "Globals";
}

std::string Globals::FormatHexText(std::string_view text) const {
  std::string result;
  errors_.Trap(kModule, "FormatHexText", [&] { result = "Hex={" + std::string(text) + "}"; });
  return result;
}

bool Globals::IsColor(std::string_view red, std::string_view green, std::string_view blue) const {
  bool result = false;
  errors_.Trap(kModule, "IsColor", [&] {
    for (std::string_view part : {red, green, blue}) {
      if (!IsLongValue("&h" + std::string(part))) return;
    }
    result = true;
  });
  return result;
}

bool Globals::IsLongValue(std::string_view input) noexcept {
  try {
    static_cast<void>(text::ToLong(input));
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace lumo
