#include "colormodel/ColorChooser.h"

#include "colormodel/RuntimeError.h"

namespace lumo {

void ColorChooser::ShowColor() {
  OLE_COLOR chosen = color_;
  if (RunDialog(color_, chosen)) {
    color_ = chosen;
  } else if (cancelError_) {
    throw RuntimeError(err::ChooserCancelled, "Cancelled");
  }
}

}  // namespace lumo
