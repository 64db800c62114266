#include "qt/QtTimerService.h"

#include "qt/QtHostTimer.h"

namespace LumoColorCombo::host {

std::unique_ptr<lumo::HostTimer> QtTimerService::CreateTimer(std::function<void()> tick) {
  return std::make_unique<QtHostTimer>(std::move(tick));
}

}  // namespace LumoColorCombo::host
