#pragma once

#include <cstdint>

// The library's whole-number rules, in one place so that nothing re-implements
// them: 32-bit signed arithmetic that raises overflow (code 6) instead of wrapping,
// conversion to whole numbers by round-half-to-even, and integer division that
// truncates toward zero (code 11 on a zero divisor).
namespace lumo::checked {

std::int32_t Add(std::int32_t a, std::int32_t b);
std::int32_t Sub(std::int32_t a, std::int32_t b);
std::int32_t Mul(std::int32_t a, std::int32_t b);
std::int32_t Abs(std::int32_t a);

// a \ b: truncates toward zero.
std::int32_t Div(std::int32_t a, std::int32_t b);
// a Mod b: the remainder takes the sign of a.
std::int32_t Mod(std::int32_t a, std::int32_t b);

// CLng of a floating-point value: nearest whole number, ties to the even one.
std::int32_t Round(double value);

}  // namespace lumo::checked
