#pragma once

#include <optional>

#include "colormodel/ColorChooser.h"

namespace lumo::testing {

// A colour chooser whose user is the test: NextChoice is what gets picked, or, when
// empty, the user cancels.
class ScriptedColorChooser : public ColorChooser {
 public:
  std::optional<OLE_COLOR> NextChoice;
  int Shows = 0;

 protected:
  bool RunDialog(OLE_COLOR /*initial*/, OLE_COLOR& chosen) override {
    ++Shows;
    if (!NextChoice) return false;
    chosen = *NextChoice;
    return true;
  }
};

}  // namespace lumo::testing
