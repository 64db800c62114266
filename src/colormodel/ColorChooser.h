#pragma once

#include "colormodel/Types.h"

namespace lumo {

namespace err {
inline constexpr std::int32_t ChooserCancelled = 32755;
}

// The system colour chooser. It keeps the colour it last had between showings.
class ColorChooser {
 public:
  virtual ~ColorChooser() = default;

  bool CancelError() const { return cancelError_; }
  void SetCancelError(bool raise) { cancelError_ = raise; }
  OLE_COLOR Color() const { return color_; }
  void SetColor(OLE_COLOR color) { color_ = color; }

  // Shows the chooser modally. A confirmed choice becomes Color(); a cancel raises
  // RuntimeError(err::ChooserCancelled) when CancelError() is set and changes nothing.
  void ShowColor();

 protected:
  // Runs the dialog from `initial`; true with `chosen` set when the user confirmed.
  virtual bool RunDialog(OLE_COLOR initial, OLE_COLOR& chosen) = 0;

 private:
  bool cancelError_ = false;
  OLE_COLOR color_ = 0;
};

}  // namespace lumo
