#include "qt/Twips.h"

#include "colormodel/CheckedMath.h"
#include "colormodel/Types.h"

namespace LumoColorCombo::host {

int Twips::toPixels(std::int32_t twips) {
  return lumo::checked::Round(static_cast<double>(twips) / lumo::TwipsPerPixel);
}

std::int32_t Twips::fromPixels(int pixels) { return lumo::checked::Mul(pixels, lumo::TwipsPerPixel); }

}  // namespace LumoColorCombo::host
