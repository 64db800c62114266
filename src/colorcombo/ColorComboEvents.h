#pragma once

#include "colormodel/Types.h"

namespace lumo {

// What a ColorCombo tells its host, in the published order of its event interface.
// Every member has an empty default so a host overrides only what it listens to.
//
// The Before/After pairs are raised only by a pick in the drop-down, never by a
// property set from code. A handler that sets `Cancel` stops the pick there.
class ColorComboEvents {
 public:
  virtual ~ColorComboEvents() = default;

  virtual void BeforeColorChanged(OLE_COLOR /*Color*/, bool& /*Cancel*/) {}
  virtual void AfterColorChanged(OLE_COLOR /*Color*/) {}
  virtual void BeforeIsAutomaticChanged(bool /*Value*/, bool& /*Cancel*/) {}
  virtual void AfterIsAutomaticChanged(bool /*Value*/) {}
  virtual void BeforeDropDown(bool& /*Cancel*/) {}
  virtual void AfterDropUp() {}
  virtual void DblClick() {}
};

}  // namespace lumo
