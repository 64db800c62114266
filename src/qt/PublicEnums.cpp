// The public enumerations restate the core's values so that the installed headers stand
// alone; these checks keep the two sets equal.
#include <LumoColorCombo/LumoColorCombo.h>

#include "colormodel/Enums.h"

namespace LumoColorCombo {
namespace {

#define LUMO_SAME_VALUE(name) static_assert(static_cast<qint32>(name) == static_cast<std::int32_t>(lumo::name))

LUMO_SAME_VALUE(cpsStandard);
LUMO_SAME_VALUE(cpsStandardWithBW);
LUMO_SAME_VALUE(cpsGreyScale16);
LUMO_SAME_VALUE(cpsGreyScale256);
LUMO_SAME_VALUE(cpsPalette48);
LUMO_SAME_VALUE(cpsPalette48WithBW);
LUMO_SAME_VALUE(cpsPalette256);
LUMO_SAME_VALUE(cpsPalette256WithBW);
LUMO_SAME_VALUE(cpsPaletteRed256);
LUMO_SAME_VALUE(cpsPaletteGreen256);
LUMO_SAME_VALUE(cpsPaletteBlue256);
LUMO_SAME_VALUE(cpsPaletteRed16);
LUMO_SAME_VALUE(cpsPaletteGreen16);
LUMO_SAME_VALUE(cpsPaletteBlue16);
LUMO_SAME_VALUE(cpsPalette40);
LUMO_SAME_VALUE(oecNone);
LUMO_SAME_VALUE(oecSlide);
LUMO_SAME_VALUE(oecUnfold);
LUMO_SAME_VALUE(cscDropDown);
LUMO_SAME_VALUE(cscCombobox);
LUMO_SAME_VALUE(cscButton);
LUMO_SAME_VALUE(cscButtonNoText);
LUMO_SAME_VALUE(bcNone);
LUMO_SAME_VALUE(bcFixedSingle);

#undef LUMO_SAME_VALUE

}  // namespace
}  // namespace LumoColorCombo
