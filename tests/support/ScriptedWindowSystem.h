#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "colormodel/WindowSystem.h"
#include "support/TestForm.h"

namespace lumo::testing {

// A window system whose state the test sets (capture, activation, screen) and
// whose modal shows run the test's script for that form and return when it unloads.
class ScriptedWindowSystem : public WindowSystem {
 public:
  std::unique_ptr<FormWindow> LoadForm(const std::string& name, FormEvents& events) override {
    auto form = std::make_unique<TestForm>(events, nextHandle_ += 0x10);
    if (const auto script = scripts_.find(name); script != scripts_.end()) form->ModalScript = script->second;
    lastForms_[name] = form.get();
    return form;
  }
  std::int32_t ScreenWidth() const override { return 1024 * 15; }
  std::int32_t ScreenHeight() const override { return ScreenHeightTwips; }
  WindowHandle SetCapture(WindowHandle window) override {
    CaptureCalls.push_back(window);
    return std::exchange(Capture, window);
  }
  WindowHandle GetCapture() const override { return Capture; }
  bool ReleaseCapture() override {
    ++ReleaseCalls;
    Capture = 0;
    return true;
  }
  WindowHandle GetActiveWindow() const override { return ActiveWindow; }
  WindowHandle GetFocus() const override { return 0; }  // no test moves the focus
  Point ClientToScreen(WindowHandle window, Point point) const override {
    const auto found = ClientOrigins.find(window);
    const Point origin = found == ClientOrigins.end() ? Point{} : found->second;
    return {origin.X + point.X, origin.Y + point.Y};
  }
  void DoEvents() override {
    if (OnDoEvents) OnDoEvents();
  }
  void ShowAboutBox(WindowHandle owner) override { AboutBoxOwners.push_back(owner); }

  // --- for tests ---
  // What the user does while the named form is shown modally.
  void ScriptModal(const std::string& formName, std::function<void(TestForm&)> script) {
    scripts_[formName] = std::move(script);
  }
  // The most recently loaded form of that name (null if none was loaded).
  TestForm* LastForm(const std::string& formName) const {
    const auto found = lastForms_.find(formName);
    return found == lastForms_.end() ? nullptr : found->second;
  }

  std::int32_t ScreenHeightTwips = 768 * 15;
  WindowHandle Capture = 0;
  WindowHandle ActiveWindow = 0;
  std::map<WindowHandle, Point> ClientOrigins;  // screen position of each window's client origin
  std::vector<WindowHandle> CaptureCalls;
  int ReleaseCalls = 0;
  std::function<void()> OnDoEvents;
  std::vector<WindowHandle> AboutBoxOwners;

 private:
  std::map<std::string, std::function<void(TestForm&)>> scripts_;
  std::map<std::string, TestForm*> lastForms_;
  WindowHandle nextHandle_ = 0x9000;
};

}  // namespace lumo::testing
