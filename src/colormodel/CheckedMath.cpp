#include "colormodel/CheckedMath.h"

#include <cmath>
#include <limits>

#include "colormodel/RuntimeError.h"

namespace lumo::checked {
namespace {

std::int32_t Narrow(std::int64_t wide) {
  if (wide < std::numeric_limits<std::int32_t>::min() ||
      wide > std::numeric_limits<std::int32_t>::max()) {
    throw RuntimeError(err::Overflow);
  }
  return static_cast<std::int32_t>(wide);
}

}  // namespace

std::int32_t Add(std::int32_t a, std::int32_t b) { return Narrow(std::int64_t{a} + b); }
std::int32_t Sub(std::int32_t a, std::int32_t b) { return Narrow(std::int64_t{a} - b); }
std::int32_t Mul(std::int32_t a, std::int32_t b) { return Narrow(std::int64_t{a} * b); }
std::int32_t Abs(std::int32_t a) { return Narrow(a < 0 ? -std::int64_t{a} : std::int64_t{a}); }

std::int32_t Div(std::int32_t a, std::int32_t b) {
  if (b == 0) throw RuntimeError(err::DivisionByZero);
  return Narrow(std::int64_t{a} / b);  // C++ division already truncates toward zero
}

std::int32_t Mod(std::int32_t a, std::int32_t b) {
  if (b == 0) throw RuntimeError(err::DivisionByZero);
  return static_cast<std::int32_t>(std::int64_t{a} % b);
}

std::int32_t Round(double value) {
  if (!std::isfinite(value)) throw RuntimeError(err::Overflow);
  // Explicit ties-to-even, independent of the floating-point environment.
  const double floor = std::floor(value);
  const double fraction = value - floor;
  double rounded = floor;
  if (fraction > 0.5 || (fraction == 0.5 && std::fmod(floor, 2.0) != 0.0)) rounded = floor + 1.0;
  if (rounded < static_cast<double>(std::numeric_limits<std::int32_t>::min()) ||
      rounded > static_cast<double>(std::numeric_limits<std::int32_t>::max())) {
    throw RuntimeError(err::Overflow);
  }
  return static_cast<std::int32_t>(rounded);
}

}  // namespace lumo::checked
