#include "colorbox/ColorBoxKeyboard.h"

#include "colormodel/CheckedMath.h"

namespace lumo {
namespace {

using Action = ColorBoxKeyboard::Action;
using Outcome = ColorBoxKeyboard::Outcome;

constexpr Outcome Automatic{Action::HotAutomatic, 0};
constexpr Outcome MoreColors{Action::HotMoreColors, 0};
constexpr Outcome Cell(std::int32_t index) { return {Action::HotCell, index}; }

}  // namespace

ColorBoxKeyboard::Outcome ColorBoxKeyboard::OnKey(std::int16_t keyCode, std::int32_t zone, std::int32_t hotIndex,
                                                  std::int32_t columns, std::int32_t count) {
  if (keyCode == keycode::Enter) return {Action::Choose, 0};
  if (keyCode == keycode::Escape) return {Action::Cancel, 0};
  switch (zone) {
    case focuszone::Automatic: return FromAutomatic(keyCode);
    case focuszone::Grid: return FromGrid(keyCode, hotIndex, columns, count);
    case focuszone::MoreColors: return FromMoreColors(keyCode, count);
    default: return {};
  }
}

ColorBoxKeyboard::Outcome ColorBoxKeyboard::FromAutomatic(std::int16_t keyCode) {
  switch (keyCode) {
    case keycode::Right:
    case keycode::Down: return Cell(1);
    case keycode::Left:
    case keycode::Up: return MoreColors;
    default: return {};
  }
}

ColorBoxKeyboard::Outcome ColorBoxKeyboard::FromGrid(std::int16_t keyCode, std::int32_t i, std::int32_t m,
                                                     std::int32_t n) {
  switch (keyCode) {
    case keycode::Right: return checked::Add(i, 1) > n ? MoreColors : Cell(i + 1);
    case keycode::Left: return checked::Sub(i, 1) < 1 ? Automatic : Cell(i - 1);
    case keycode::Up: return checked::Sub(i, m) < 1 ? Automatic : Cell(i - m);
    case keycode::Down: return checked::Add(i, m) > n ? MoreColors : Cell(i + m);
    default: return {};
  }
}

ColorBoxKeyboard::Outcome ColorBoxKeyboard::FromMoreColors(std::int16_t keyCode, std::int32_t n) {
  switch (keyCode) {
    case keycode::Right:
    case keycode::Down: return Automatic;
    case keycode::Left:
    case keycode::Up: return Cell(n);
    default: return {};
  }
}

}  // namespace lumo
