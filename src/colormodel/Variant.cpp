#include "colormodel/Variant.h"

#include <cctype>

#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"

namespace lumo {
namespace {

bool EqualsNoCase(const std::string& a, const char* b) {
  return text::Len(a) == text::Len(b) && text::InStr(1, a, b, text::Compare::Text) == 1;
}

}  // namespace

bool Variant::ToBoolean() const {
  if (IsEmpty()) return false;
  if (const auto* b = std::get_if<bool>(&value_)) return *b;
  if (const auto* n = std::get_if<std::int32_t>(&value_)) return *n != 0;
  if (const auto* s = std::get_if<std::string>(&value_)) {
    if (EqualsNoCase(*s, "True")) return true;
    if (EqualsNoCase(*s, "False")) return false;
    return text::ToLong(*s) != 0;
  }
  throw RuntimeError(err::TypeMismatch);
}

std::int32_t Variant::ToLong() const {
  if (IsEmpty()) return 0;
  if (const auto* b = std::get_if<bool>(&value_)) return *b ? -1 : 0;
  if (const auto* n = std::get_if<std::int32_t>(&value_)) return *n;
  if (const auto* s = std::get_if<std::string>(&value_)) return text::ToLong(*s);
  throw RuntimeError(err::TypeMismatch);
}

std::string Variant::ToText() const {
  if (IsEmpty()) return {};
  if (const auto* b = std::get_if<bool>(&value_)) return *b ? "True" : "False";
  if (const auto* n = std::get_if<std::int32_t>(&value_)) return text::Decimal(*n);
  if (const auto* s = std::get_if<std::string>(&value_)) return *s;
  return std::get<StdFont>(value_).Name;
}

const StdFont& Variant::ToFont() const {
  if (const auto* f = std::get_if<StdFont>(&value_)) return *f;
  throw RuntimeError(err::TypeMismatch);
}

}  // namespace lumo
