#pragma once

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

#include <LumoColorCombo/lumocolorcombo_export.h>

// The public namespace of the widgets: the four enumerations as Qt enums, so that
// Designer, QUiLoader and any host enumerating the meta-object find them by name.
namespace LumoColorCombo {
Q_NAMESPACE_EXPORT(LUMOCOLORCOMBO_EXPORT)

// A colour as the controls pass it: red + 256 * green + 65536 * blue, or with the top
// bit set a system colour index resolved against the widget's palette.
using OLE_COLOR = qint32;

// The system colours by name ("Button Face" is &H8000000F), in index order: what a
// colour editor offers beside the colours it picks (the Designer plugin's task menu).
LUMOCOLORCOMBO_EXPORT QList<QPair<QString, OLE_COLOR>> SystemColorNames();

enum ComboPickStyles : qint32 {
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
Q_ENUM_NS(ComboPickStyles)

enum OpenEffectConstants : qint32 {
  oecNone = 0,
  oecSlide = 1,
  oecUnfold = 2,
};
Q_ENUM_NS(OpenEffectConstants)

enum CCStyleConstants : qint32 {
  cscDropDown = 0,
  cscCombobox = 1,
  cscButton = 2,
  cscButtonNoText = 3,
};
Q_ENUM_NS(CCStyleConstants)

enum KDBorderConstants : qint32 {
  bcNone = 0,
  bcFixedSingle = 1,
};
Q_ENUM_NS(KDBorderConstants)

}  // namespace LumoColorCombo
