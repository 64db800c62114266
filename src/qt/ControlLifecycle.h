#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "colormodel/ControlSite.h"
#include "colormodel/PropertyBag.h"

namespace LumoColorCombo::host {

namespace detail {

template <class Part>
lumo::ControlSite* SiteAmong(Part& part) {
  if constexpr (std::is_base_of_v<lumo::ControlSite, std::remove_cv_t<Part>>) {
    return &part;
  } else {
    return nullptr;
  }
}

}  // namespace detail

// Starts a core control the way a container does: a control is either placed new
// (InitProperties) or loaded from a form file (ReadProperties), never both, so loading
// into a live widget replaces its control instance rather than reading into it. The
// events go through the site the control is built on (one of `parts`), as they do for
// a control hosted on one of the library's forms.
template <class Control, class... Parts>
Control& StartControl(std::optional<Control>& control, const lumo::PropertyBag* bag, Parts&&... parts) {
  static_assert((std::is_base_of_v<lumo::ControlSite, std::remove_cvref_t<Parts>> + ...) == 1,
                "a control is built on exactly one site");
  lumo::ControlSite* site = nullptr;
  ((site = site != nullptr ? site : detail::SiteAmong(parts)), ...);
  control.reset();
  control.emplace(std::forward<Parts>(parts)...);
  site->StartControl(bag);
  return *control;
}

}  // namespace LumoColorCombo::host
