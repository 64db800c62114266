#include "colorhexagon/HexagonNavigation.h"

#include <algorithm>

#include "colormodel/CheckedMath.h"

namespace lumo {
namespace {

// Index difference to the diagonal neighbour for the cells [First, Last]. The
// honeycomb is symmetric, so each step serves one row of the upper half and one of
// the lower half.
struct RowStep {
  std::int32_t First;
  std::int32_t Last;
  std::int32_t Step;
};

constexpr RowStep kUpSteps[] = {{8, 15, 8},   {121, 127, 8},  {16, 24, 9},  {113, 120, 9},
                                {25, 34, 10}, {104, 112, 10}, {35, 45, 11}, {94, 103, 11},
                                {46, 57, 12}, {83, 93, 12},   {58, 70, 13}, {71, 82, 13},
                                {128, 135, 1}};

constexpr RowStep kDownSteps[] = {{1, 7, 8},    {113, 120, 8},  {8, 15, 9},   {104, 112, 9},
                                  {16, 24, 10}, {94, 103, 10},  {25, 34, 11}, {83, 93, 11},
                                  {35, 45, 12}, {71, 82, 12},   {46, 57, 13}, {58, 70, 13},
                                  {128, 135, 1}};

template <std::size_t N>
std::int32_t StepOf(const RowStep (&steps)[N], std::int32_t index) {
  for (const RowStep& row : steps) {
    if (row.First <= index && index <= row.Last) return row.Step;
  }
  return 0;
}

}  // namespace

std::int32_t HexagonNavigation::Next(std::int32_t index, std::int32_t direction, std::int32_t count) {
  switch (direction) {
    case Left: return index > 1 ? index - 1 : index;
    case Right: return index < count ? index + 1 : index;
    case Up: return UpFrom(index, count);
    case Down: return DownFrom(index, count);
    default: return 0;
  }
}

std::int32_t HexagonNavigation::UpFrom(std::int32_t index, std::int32_t count) {
  if (1 <= index && index <= 7) return Next(index, Left, count);
  return std::max(checked::Sub(index, StepOf(kUpSteps, index)), 1);
}

std::int32_t HexagonNavigation::DownFrom(std::int32_t index, std::int32_t count) {
  if (121 <= index && index <= 127) return Next(index, Right, count);
  return std::min(checked::Add(index, StepOf(kDownSteps, index)), count);
}

}  // namespace lumo
