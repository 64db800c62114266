#pragma once

#include <cstdint>

namespace LumoColorCombo::host {

// Sizes cross between the core and Qt as twips at a fixed 15 per logical pixel. Twips
// to pixels rounds half to even, the library's rule for whole-number conversion, so
// 7 twips is 0 px, 8 twips 1 px, 22 twips 1 px and 23 twips 2 px.
class Twips {
 public:
  static int toPixels(std::int32_t twips);
  static std::int32_t fromPixels(int pixels);
};

}  // namespace LumoColorCombo::host
