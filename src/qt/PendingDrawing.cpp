#include "qt/PendingDrawing.h"

#include <utility>

namespace LumoColorCombo::host {

void PendingDrawing::run() {
  if (steps_.empty()) return;
  // Taken out first: a step never adds steps, but the list is left empty either way,
  // and its storage goes with it, so a shown control keeps none.
  std::vector<std::function<void()>> steps = std::exchange(steps_, {});
  for (const auto& step : steps) step();
}

// A new empty list, not `steps_ = {}`: assigning an empty brace list keeps the storage,
// and a shown surface, which clears before every drawing, would hold it for good.
void PendingDrawing::drop() { steps_ = std::vector<std::function<void()>>(); }

}  // namespace LumoColorCombo::host
