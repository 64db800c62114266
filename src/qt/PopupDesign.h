#pragma once

namespace LumoColorCombo::host {

class QtFormWindow;

// The "More Colors" dialog's window: the honeycomb with its hover caption on the left;
// Ok/Cancel, the new-and-current swatch pair with its labels, Custom and Select... on
// the right; the typed colour value below. The core sets the caption and lays the
// swatches out inside their frame.
//
// Return in the colour field takes the typed text in without closing; Escape and the
// title bar's close button both close the dialog as a title-bar close (unload mode 0).
class PopupDesign {
 public:
  static void build(QtFormWindow& form);

  // The honeycomb's surface and its caption below it, in logical pixels.
  static constexpr int HexagonWidth = 239;
  static constexpr int HexagonHeight = 249;
  static constexpr int CaptionHeight = 17;
  static constexpr int SwatchFrameWidth = 60;
  static constexpr int SwatchFrameHeight = 80;
};

}  // namespace LumoColorCombo::host
