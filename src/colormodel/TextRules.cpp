#include "colormodel/TextRules.h"

#include <cctype>
#include <charconv>
#include <limits>
#include <system_error>

#include "colormodel/CheckedMath.h"
#include "colormodel/RuntimeError.h"

namespace lumo::text {
namespace {

char Fold(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

bool SameAt(std::string_view text, std::size_t pos, std::string_view find, Compare compare) {
  if (pos + find.size() > text.size()) return false;
  for (std::size_t i = 0; i < find.size(); ++i) {
    const char a = text[pos + i];
    const char b = find[i];
    if (compare == Compare::Text ? Fold(a) != Fold(b) : a != b) return false;
  }
  return true;
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

int HexDigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::int32_t HexLiteral(std::string_view digits) {
  if (digits.empty()) throw RuntimeError(err::TypeMismatch);
  std::uint64_t value = 0;
  int significant = 0;
  for (char c : digits) {
    const int digit = HexDigitValue(c);
    if (digit < 0) throw RuntimeError(err::TypeMismatch);
    if (significant > 0 || digit != 0) ++significant;
    if (significant > 8) throw RuntimeError(err::Overflow);
    value = value * 16 + static_cast<std::uint64_t>(digit);
  }
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

// A decimal text too far from zero for a double: an overflow when its whole part has a
// significant digit, otherwise a fraction too small to tell from zero.
std::int32_t OutOfRangeResult(std::string_view digits) {
  for (const char c : digits) {
    if (c == '.') break;
    if (c >= '1' && c <= '9') throw RuntimeError(err::Overflow);
  }
  return 0;
}

std::int32_t DecimalLiteral(std::string_view digits) {
  // Sign, digits, optional fraction; nothing else (no exponent, no thousands marks).
  std::size_t i = 0;
  if (i < digits.size() && (digits[i] == '+' || digits[i] == '-')) ++i;
  bool sawDigit = false;
  bool sawPoint = false;
  for (; i < digits.size(); ++i) {
    const char c = digits[i];
    if (std::isdigit(static_cast<unsigned char>(c))) {
      sawDigit = true;
    } else if (c == '.' && !sawPoint) {
      sawPoint = true;
    } else {
      throw RuntimeError(err::TypeMismatch);
    }
  }
  if (!sawDigit) throw RuntimeError(err::TypeMismatch);
  // from_chars, not strtod: the point is always "." whatever C locale the host's
  // application object set, so a saved form loads the same everywhere.
  if (digits.front() == '+') digits.remove_prefix(1);
  double value = 0.0;
  const auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (ec == std::errc::result_out_of_range) return OutOfRangeResult(digits);
  if (ec != std::errc() || end != digits.data() + digits.size()) throw RuntimeError(err::TypeMismatch);
  return checked::Round(value);
}

}  // namespace

std::string Hex(std::int32_t value) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  auto bits = static_cast<std::uint32_t>(value);
  if (bits == 0) return "0";
  std::string out;
  while (bits != 0) {
    out.insert(out.begin(), kDigits[bits & 0xFu]);
    bits >>= 4;
  }
  return out;
}

std::string Decimal(std::int32_t value) {
  // to_chars: digits and "-" only, never the C locale's grouping or digits.
  char buffer[std::numeric_limits<std::int32_t>::digits10 + 3];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

std::int32_t ToLong(std::string_view input) {
  const std::string_view trimmed = TrimBlanks(input);
  if (trimmed.size() >= 2 && trimmed[0] == '&' && Fold(trimmed[1]) == 'h') {
    return HexLiteral(trimmed.substr(2));
  }
  return DecimalLiteral(trimmed);
}

std::string Repeat(std::int32_t count, char ch) {
  if (count < 0) throw RuntimeError(err::InvalidArgument);
  return std::string(static_cast<std::size_t>(count), ch);
}

std::string Replace(std::string_view source, std::string_view find, std::string_view with,
                    Compare compare) {
  if (find.empty()) return std::string(source);
  std::string out;
  out.reserve(source.size());
  std::size_t pos = 0;
  while (pos < source.size()) {
    if (SameAt(source, pos, find, compare)) {
      out.append(with);
      pos += find.size();
    } else {
      out.push_back(source[pos++]);
    }
  }
  return out;
}

std::int32_t InStr(std::int32_t start, std::string_view source, std::string_view find,
                   Compare compare) {
  if (start < 1) throw RuntimeError(err::InvalidArgument);
  const auto from = static_cast<std::size_t>(start - 1);
  if (from > source.size()) return 0;
  if (find.empty()) return start;
  for (std::size_t pos = from; pos + find.size() <= source.size(); ++pos) {
    if (SameAt(source, pos, find, compare)) return static_cast<std::int32_t>(pos + 1);
  }
  return 0;
}

std::int32_t Len(std::string_view source) {
  if (source.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
    throw RuntimeError(err::Overflow);
  }
  return static_cast<std::int32_t>(source.size());
}

}  // namespace lumo::text
