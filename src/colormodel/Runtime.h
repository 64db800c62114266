#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <typeindex>
#include <vector>

#include "colormodel/CommonGlobals.h"
#include "colormodel/Variant.h"

namespace lumo {

class Clock;
class ColorChooser;
class MessageBox;
class TimerService;
class WindowSystem;

// The platform services a host supplies, once per application.
struct HostServices {
  MessageBox& messageBox;
  Clock& clock;
  TimerService& timers;
  WindowSystem& windows;
  ColorChooser& colorChooser;
};

// Everything the library holds module-wide, owned by one object that the host creates
// once and hands to every control: the host services, the error reporter, the result
// record of a pick (`PopupResult`) and the shared form instances. No mutable globals.
class Runtime {
 public:
  explicit Runtime(const HostServices& services);
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime();

  const CommonGlobals& Errors() const { return errors_; }
  MessageBox& Messages() const { return services_.messageBox; }
  Clock& ClockService() const { return services_.clock; }
  TimerService& Timers() const { return services_.timers; }
  WindowSystem& Windows() const { return services_.windows; }
  ColorChooser& Chooser() const { return services_.colorChooser; }

  // `PopupResult`: the slots through which the drop-down, the ColorBox and the More
  // Colors dialog hand the outcome of a pick to the combo. ReDim discards old contents
  // and leaves `entries` empty slots (index 0 to entries - 1).
  std::vector<Variant>& PopupResult() { return popupResult_; }
  const std::vector<Variant>& PopupResult() const { return popupResult_; }
  void ReDimPopupResult(std::size_t entries);
  // A cancelled pick: one slot, false.
  void ResetPopupResult();
  // Slot `index`, or an index-out-of-range error (9) when the record lacks it.
  const Variant& PopupResultAt(std::size_t index) const;

  // The single shared instance of a library form class, or null when none is loaded.
  template <class Form>
  Form* SharedForm() const {
    const auto found = sharedForms_.find(std::type_index(typeid(Form)));
    return found == sharedForms_.end() ? nullptr : static_cast<Form*>(found->second.get());
  }
  // Installs (or, with null, drops) the shared instance of a form class. A dropped
  // instance is destroyed only at the next install or with the runtime, because a form
  // drops itself from inside its own unload handler.
  template <class Form>
  void SetSharedForm(std::unique_ptr<Form> form) {
    const std::type_index key(typeid(Form));
    if (const auto found = sharedForms_.find(key); found != sharedForms_.end()) {
      retiredForms_.push_back(std::move(found->second));
      sharedForms_.erase(found);
    }
    if (!form) return;
    retiredForms_.clear();
    sharedForms_.emplace(key, ErasedForm(form.release(), [](void* p) { delete static_cast<Form*>(p); }));
  }

 private:
  using ErasedForm = std::unique_ptr<void, void (*)(void*)>;

  HostServices services_;
  CommonGlobals errors_;
  std::vector<Variant> popupResult_;
  std::map<std::type_index, ErasedForm> sharedForms_;
  std::vector<ErasedForm> retiredForms_;
};

}  // namespace lumo
