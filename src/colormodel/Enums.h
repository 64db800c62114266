#pragma once

#include <cstdint>

namespace lumo {

// The palette a ColorBox (and a ColorCombo's drop-down) shows.
enum ComboPickStyles : std::int32_t {
  cpsStandard = 0,
  cpsStandardWithBW = 1,
  cpsGreyScale16 = 2,
  cpsGreyScale256 = 3,
  cpsPalette48 = 4,
  cpsPalette48WithBW = 5,
  cpsPalette256 = 6,
  cpsPalette256WithBW = 7,
  cpsPaletteRed256 = 8,
  cpsPaletteGreen256 = 9,
  cpsPaletteBlue256 = 10,
  cpsPaletteRed16 = 11,
  cpsPaletteGreen16 = 12,
  cpsPaletteBlue16 = 13,
  cpsPalette40 = 14,
};

// How a ColorCombo's drop-down opens.
enum OpenEffectConstants : std::int32_t {
  oecNone = 0,
  oecSlide = 1,
  oecUnfold = 2,
};

// A ColorCombo's appearance.
enum CCStyleConstants : std::int32_t {
  cscDropDown = 0,
  cscCombobox = 1,
  cscButton = 2,
  cscButtonNoText = 3,
};

// A ColorSample's frame.
enum KDBorderConstants : std::int32_t {
  bcNone = 0,
  bcFixedSingle = 1,
};

}  // namespace lumo
