#include "colorcombo/CEventPass.h"

namespace lumo {

void CEventPass::OverColor(OLE_COLOR lColor, bool bOverAutomatic) {
  if (listener_ != nullptr) listener_->OverColor(lColor, bOverAutomatic);
}

}  // namespace lumo
