#include "colormodel/Runtime.h"

#include "colormodel/RuntimeError.h"

namespace lumo {

Runtime::Runtime(const HostServices& services) : services_(services), errors_(services.messageBox) {}

Runtime::~Runtime() = default;

void Runtime::ReDimPopupResult(std::size_t entries) { popupResult_.assign(entries, Variant()); }

void Runtime::ResetPopupResult() {
  ReDimPopupResult(1);
  popupResult_[0] = Variant(false);
}

const Variant& Runtime::PopupResultAt(std::size_t index) const {
  if (index >= popupResult_.size()) throw RuntimeError(err::IndexOutOfRange);
  return popupResult_[index];
}

}  // namespace lumo
