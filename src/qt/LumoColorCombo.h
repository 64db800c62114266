#pragma once

#include <QObject>

#include "colormodel/Enums.h"

// The public namespace of the widgets: the four enumerations as Qt enums, so that
// Designer, QUiLoader and any host enumerating the meta-object find them by name.
namespace LumoColorCombo {
Q_NAMESPACE

// A colour as the controls pass it: red + 256 * green + 65536 * blue, or with the top
// bit set a system colour index resolved against the widget's palette.
using OLE_COLOR = qint32;

enum ComboPickStyles : qint32 {
  cpsStandard = lumo::cpsStandard,
  cpsStandardWithBW = lumo::cpsStandardWithBW,
  cpsGreyScale16 = lumo::cpsGreyScale16,
  cpsGreyScale256 = lumo::cpsGreyScale256,
  cpsPalette48 = lumo::cpsPalette48,
  cpsPalette48WithBW = lumo::cpsPalette48WithBW,
  cpsPalette256 = lumo::cpsPalette256,
  cpsPalette256WithBW = lumo::cpsPalette256WithBW,
  cpsPaletteRed256 = lumo::cpsPaletteRed256,
  cpsPaletteGreen256 = lumo::cpsPaletteGreen256,
  cpsPaletteBlue256 = lumo::cpsPaletteBlue256,
  cpsPaletteRed16 = lumo::cpsPaletteRed16,
  cpsPaletteGreen16 = lumo::cpsPaletteGreen16,
  cpsPaletteBlue16 = lumo::cpsPaletteBlue16,
  cpsPalette40 = lumo::cpsPalette40,
};
Q_ENUM_NS(ComboPickStyles)

enum OpenEffectConstants : qint32 {
  oecNone = lumo::oecNone,
  oecSlide = lumo::oecSlide,
  oecUnfold = lumo::oecUnfold,
};
Q_ENUM_NS(OpenEffectConstants)

enum CCStyleConstants : qint32 {
  cscDropDown = lumo::cscDropDown,
  cscCombobox = lumo::cscCombobox,
  cscButton = lumo::cscButton,
  cscButtonNoText = lumo::cscButtonNoText,
};
Q_ENUM_NS(CCStyleConstants)

enum KDBorderConstants : qint32 {
  bcNone = lumo::bcNone,
  bcFixedSingle = lumo::bcFixedSingle,
};
Q_ENUM_NS(KDBorderConstants)

}  // namespace LumoColorCombo
