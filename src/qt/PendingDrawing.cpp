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

void PendingDrawing::drop() { steps_ = {}; }

}  // namespace LumoColorCombo::host
