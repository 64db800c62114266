#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "colormodel/MessageBox.h"
#include "colormodel/RuntimeError.h"
#include "colormodel/Variant.h"

namespace lumo {

class ControlSite;

// The one way the library deals with an unexpected error: the procedure catches it,
// shows a message box naming the error, the module and the procedure, and returns
// normally. Nothing ever escapes to the host.
class CommonGlobals {
 public:
  static constexpr std::int32_t ErrorStyle = 48;  // exclamation icon, OK button
  static constexpr const char* ErrorTitle = "Error";

  explicit CommonGlobals(MessageBox& messageBox) : messageBox_(messageBox) {}

  // The message text, without showing it.
  static std::string ErrorMessage(std::int32_t number, std::string_view description,
                                  std::string_view module, std::string_view procedure,
                                  const std::optional<Variant>& customText = std::nullopt);

  // Shows the message modally and waits. Never fails: anything that goes wrong
  // while reporting is swallowed.
  void ReportError(std::int32_t number, std::string_view description, std::string_view module,
                   std::string_view procedure,
                   const std::optional<Variant>& customText = std::nullopt) const noexcept;

  // Runs `body`; an error it raises is reported under `module` and `procedure` and the
  // call returns normally. Results assigned inside `body` before the error stay.
  template <class Body>
  void Trap(std::string_view module, std::string_view procedure, Body&& body) const noexcept {
    try {
      std::forward<Body>(body)();
    } catch (...) {
      ReportCurrentException(module, procedure);
    }
  }

  // The same for a procedure of a control whose host may delete it while the
  // procedure runs (from a handler of an event it raises, or from a timer inside an
  // error box's or a form's modal loop). `alive` is the control's liveness token: an
  // error that ends a procedure whose control is gone is not reported, since the host
  // has already closed what it concerned.
  template <class Body>
  void Trap(std::string_view module, std::string_view procedure, const std::weak_ptr<bool>& alive,
            Body&& body) const noexcept {
    try {
      std::forward<Body>(body)();
    } catch (...) {
      if (!alive.expired()) ReportCurrentException(module, procedure);
    }
  }

  // A setter that notifies the host: the trap, then PropertyChanged(label) on the
  // normal path and after a reported error alike.
  template <class Body>
  void TrapAndNotify(std::string_view module, std::string_view label, ControlSite& site,
                     Body&& body) const noexcept;

  // The same with the control's liveness token: a control gone by the end of the
  // setter (its error box runs a loop) is neither reported on nor notified; its site
  // went with it.
  template <class Body>
  void TrapAndNotify(std::string_view module, std::string_view label, ControlSite& site,
                     const std::weak_ptr<bool>& alive, Body&& body) const noexcept;

  // For the handlers whose failures are ignored (resize, terminate, some timers).
  template <class Body>
  static void IgnoreErrors(Body&& body) noexcept {
    try {
      std::forward<Body>(body)();
    } catch (...) {
    }
  }

  // The platform code of the exception in flight.
  static RuntimeError CurrentError() noexcept;

 private:
  void ReportCurrentException(std::string_view module, std::string_view procedure) const noexcept;
  static void NotifyChanged(ControlSite& site, std::string_view label) noexcept;

  MessageBox& messageBox_;
};

template <class Body>
void CommonGlobals::TrapAndNotify(std::string_view module, std::string_view label,
                                  ControlSite& site, Body&& body) const noexcept {
  Trap(module, label, std::forward<Body>(body));
  NotifyChanged(site, label);
}

template <class Body>
void CommonGlobals::TrapAndNotify(std::string_view module, std::string_view label, ControlSite& site,
                                  const std::weak_ptr<bool>& alive, Body&& body) const noexcept {
  Trap(module, label, alive, std::forward<Body>(body));
  if (!alive.expired()) NotifyChanged(site, label);
}

}  // namespace lumo
