#pragma once

#include <cstdint>

#include "colormodel/SurfaceEvents.h"  // keycode: the keys a ColorBox handles

namespace lumo {

// The three places the keyboard focus of a ColorBox can be.
namespace focuszone {
inline constexpr std::int32_t Automatic = 1;
inline constexpr std::int32_t Grid = 2;
inline constexpr std::int32_t MoreColors = 3;
}  // namespace focuszone

// Where a key moves the keyboard focus of the grid, kept apart from the drawing so the
// whole table reads in one place. Movement wraps: past the last cell comes the More
// Colors button, after it the Automatic button, after that cell 1, and backwards the
// same way round. The two buttons are entered even when the control does not offer
// them; that is the designed behaviour.
class ColorBoxKeyboard {
 public:
  enum class Action {
    Ignore,          // not one of the six keys
    Choose,          // Enter: the zone decides what is chosen
    Cancel,          // Escape
    HotAutomatic,    // the Automatic button becomes hot
    HotCell,         // `cell` becomes hot
    HotMoreColors,   // the More Colors button becomes hot
  };

  struct Outcome {
    Action action = Action::Ignore;
    std::int32_t cell = 0;  // 1-based, for HotCell only
    friend bool operator==(const Outcome&, const Outcome&) = default;
  };

  // `hotIndex` is the grid's hot cell (zone 2), `columns` the cells per row and
  // `count` the number of cells. Index arithmetic is 32-bit and checked.
  static Outcome OnKey(std::int16_t keyCode, std::int32_t zone, std::int32_t hotIndex, std::int32_t columns,
                       std::int32_t count);

 private:
  static Outcome FromAutomatic(std::int16_t keyCode);
  static Outcome FromGrid(std::int16_t keyCode, std::int32_t i, std::int32_t m, std::int32_t n);
  static Outcome FromMoreColors(std::int16_t keyCode, std::int32_t n);
};

}  // namespace lumo
