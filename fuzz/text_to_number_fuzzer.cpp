// Fuzzes the "&h"-aware text-to-number conversion (text::ToLong) against its rules:
// - the answer is a number, a type mismatch (13) or an overflow (6), nothing else;
// - "&h" text: one to eight significant hexadecimal digits give that 32-bit pattern,
//   more are an overflow, anything else a mismatch;
// - decimal text: sign, digits, at most one point; the number is the nearest whole one
//   (within a half), an overflow only when that lies outside the 32-bit range;
// - any number it gives is written back as "&H" + Hex and as Decimal and reads back the same.
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "FuzzCheck.h"
#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"

namespace {

using lumo::fuzz::Require;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool IsHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool IsDecimalDigit(char c) { return c >= '0' && c <= '9'; }

// What the conversion must answer: a number, or the error code.
struct Expected {
  std::optional<std::int32_t> value;
  std::int32_t error = 0;
  std::optional<double> approximately;  // a decimal fraction: the number it rounds
  // A hex text with a stray character may also have too many digits before it: the rules
  // do not say which of the two it reports, so either code is right.
  bool eitherCode = false;
};

Expected ExpectHex(std::string_view digits) {
  if (digits.empty()) return {{}, lumo::err::TypeMismatch, {}};
  for (char c : digits) {
    if (!IsHexDigit(c)) return {{}, lumo::err::TypeMismatch, {}, true};
  }
  while (digits.size() > 1 && digits.front() == '0') digits.remove_prefix(1);
  if (digits.size() > 8) return {{}, lumo::err::Overflow, {}};
  std::uint32_t bits = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), bits, 16);
  return {static_cast<std::int32_t>(bits), 0, {}};
}

Expected ExpectDecimal(std::string_view text) {
  std::string_view body = text;
  if (!body.empty() && (body.front() == '+' || body.front() == '-')) body.remove_prefix(1);
  bool digit = false;
  bool point = false;
  for (char c : body) {
    if (IsDecimalDigit(c)) {
      digit = true;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      return {{}, lumo::err::TypeMismatch, {}};
    }
  }
  if (!digit) return {{}, lumo::err::TypeMismatch, {}};
  // The magnitude only (from_chars takes no sign). Beyond a double's range it is huge when
  // the whole part is not zero (an overflow) and a tiny fraction otherwise (zero).
  double magnitude = 0;
  const std::string digits = (body.front() == '.' ? "0" : "") + std::string(body);
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
  if (read.ec == std::errc::result_out_of_range) {
    const std::string_view whole = body.substr(0, body.find('.'));
    if (whole.find_first_not_of('0') != std::string_view::npos) return {{}, lumo::err::Overflow, {}};
    magnitude = 0;
  }
  const double number = text.front() == '-' ? -magnitude : magnitude;
  if (number > 2147483647.5 || number < -2147483648.5) return {{}, lumo::err::Overflow, {}};
  return {{}, 0, number};
}

Expected Expect(std::string_view input) {
  const std::string_view trimmed = Trim(input);
  if (trimmed.size() >= 2 && trimmed[0] == '&' && (trimmed[1] == 'h' || trimmed[1] == 'H')) {
    return ExpectHex(trimmed.substr(2));
  }
  return ExpectDecimal(trimmed);
}

void CheckWritesBack(std::int32_t value) {
  Require(lumo::text::ToLong("&H" + lumo::text::Hex(value)) == value, "&H + Hex reads back");
  Require(lumo::text::ToLong(lumo::text::Decimal(value)) == value, "Decimal reads back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const Expected expected = Expect(input);
  std::optional<std::int32_t> value;
  std::int32_t error = 0;
  try {
    value = lumo::text::ToLong(input);
  } catch (const lumo::RuntimeError& e) {
    error = e.Number();
  }
  if (value) {
    Require(expected.error == 0, "a text the rules refuse is not read as a number");
    if (expected.value) Require(*value == *expected.value, "hex text gives its bit pattern");
    if (expected.approximately) {
      Require(std::fabs(*value - *expected.approximately) <= 0.5, "a decimal rounds to the nearest");
    }
    CheckWritesBack(*value);
  } else {
    Require(error == lumo::err::TypeMismatch || error == lumo::err::Overflow,
            "a failure is a type mismatch or an overflow");
    // A decimal just beyond the range may round either way at the edge; elsewhere the code
    // is the one the rules give.
    if (!expected.approximately && !expected.eitherCode) {
      Require(error == expected.error, "the error is the rules' one");
    }
    if (expected.approximately) {
      Require(error == lumo::err::Overflow && std::fabs(*expected.approximately) >= 2147483647.0,
              "only a decimal at the edge of the range overflows");
    }
  }
  return 0;
}
