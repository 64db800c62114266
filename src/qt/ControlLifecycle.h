#pragma once

#include <optional>
#include <utility>

#include "colormodel/PropertyBag.h"

namespace LumoColorCombo::host {

// Starts a core control the way a container does: a control is either placed new
// (InitProperties) or loaded from a form file (ReadProperties), never both, so loading
// into a live widget replaces its control instance rather than reading into it.
template <class Control, class... Parts>
Control& StartControl(std::optional<Control>& control, const lumo::PropertyBag* bag, Parts&&... parts) {
  control.reset();
  control.emplace(std::forward<Parts>(parts)...);
  if (bag != nullptr) {
    control->UserControl_ReadProperties(*bag);
  } else {
    control->UserControl_InitProperties();
  }
  return *control;
}

}  // namespace LumoColorCombo::host
