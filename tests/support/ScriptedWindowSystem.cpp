#include "support/ScriptedWindowSystem.h"

namespace lumo::testing {

std::unique_ptr<FormWindow> ScriptedWindowSystem::LoadForm(const std::string& name, FormEvents& events) {
  auto form = std::make_unique<TestForm>(name, events, nextHandle_ += 0x10);
  if (const auto script = scripts_.find(name); script != scripts_.end()) form->ModalScript = script->second;
  lastForms_[name] = form.get();
  LoadedForms.push_back(name);
  return form;
}

TestForm* ScriptedWindowSystem::LastForm(const std::string& formName) const {
  const auto found = lastForms_.find(formName);
  return found == lastForms_.end() ? nullptr : found->second;
}

WindowHandle ScriptedWindowSystem::SetCapture(WindowHandle window) {
  CaptureCalls.push_back(window);
  const WindowHandle previous = Capture;
  Capture = window;
  return previous;
}

bool ScriptedWindowSystem::ReleaseCapture() {
  ++ReleaseCalls;
  Capture = 0;
  return true;
}

Point ScriptedWindowSystem::ClientToScreen(WindowHandle window, Point point) const {
  const auto found = ClientOrigins.find(window);
  const Point origin = found == ClientOrigins.end() ? Point{} : found->second;
  return {origin.X + point.X, origin.Y + point.Y};
}

void ScriptedWindowSystem::DoEvents() {
  ++DoEventsCalls;
  if (OnDoEvents) OnDoEvents();
}

}  // namespace lumo::testing
