#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The text rules that the controls rely on: hexadecimal text,
// the "&h" text-to-number conversion, case-insensitive replace and search, and
// padding whose negative count is an error (code 5).
namespace lumo::text {

// Upper-case hexadecimal digits, no leading zeros; a negative number gives its
// eight-digit two's complement ("FFFFFFFF" for -1).
std::string Hex(std::int32_t value);

// Decimal digits with a leading "-" for negatives.
std::string Decimal(std::int32_t value);

// The platform's text-to-number conversion to a 32-bit whole number. Accepts, with
// optional blanks around it, either "&h" (any case) followed by one to eight
// significant hexadecimal digits (eight digits with the top bit set are negative),
// or a decimal number with an optional sign and fraction (rounded half to even).
// An empty digit part or any other character is a type mismatch (13); a value that
// does not fit is an overflow (6).
std::int32_t ToLong(std::string_view text);

// A text of `count` copies of `ch`; a negative count is an invalid argument (5).
std::string Repeat(std::int32_t count, char ch);

enum class Compare { Binary = 0, Text = 1 };

// Every occurrence of `find` replaced, left to right, without overlaps. An empty
// `find` leaves the text unchanged.
std::string Replace(std::string_view text, std::string_view find, std::string_view with,
                    Compare compare = Compare::Binary);

// 1-based position of `find` in `text` at or after `start` (1-based), or 0.
// An empty `find` answers `start`; a start below 1 is an invalid argument (5).
std::int32_t InStr(std::int32_t start, std::string_view text, std::string_view find,
                   Compare compare = Compare::Binary);

// Length of a text as the platform counts it (characters of the stored text).
std::int32_t Len(std::string_view text);

}  // namespace lumo::text
