#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "colormodel/ControlEvents.h"
#include "colormodel/FormEvents.h"
#include "colormodel/FormWindow.h"
#include "colormodel/TextBox.h"
#include "support/TestLabel.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"

namespace lumo::testing {

class TestTextBox : public TextBox {
 public:
  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

// A headless form: geometry in twips, children made on first use by name, and the
// user's actions (clicks, leaving a text box, closing from the title bar) as calls.
class TestForm : public FormWindow {
 public:
  TestForm(FormEvents& events, WindowHandle handle) : events_(events), handle_(handle) {}

  WindowHandle hWnd() const override { return handle_; }
  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  std::int32_t Left() const override { return left_; }
  std::int32_t Top() const override { return top_; }
  std::int32_t Width() const override { return width_; }
  std::int32_t Height() const override { return height_; }
  std::int32_t ScaleWidth() const override { return width_ - 2 * BorderTwips; }
  std::int32_t ScaleHeight() const override { return height_ - 2 * BorderTwips; }
  void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) override {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
  }
  // Becoming visible shows the hosted controls and activates the window, as a window
  // system does when it maps a window; the modal script runs after that.
  void Show(bool modal) override {
    if (!visible_ && loaded_) {
      visible_ = true;
      for (const auto& [name, site] : sites_) {
        if (ControlEvents* control = site->Control()) control->UserControl_Show();
      }
      if (loaded_) events_.Form_Activate();
    }
    if (!modal) return;
    if (ModalScript) ModalScript(*this);
    ModalLeftOpen = loaded_;
  }
  void Unload() override { UnloadWithMode(unloadmode::Code); }
  bool IsLoaded() const override { return loaded_; }
  DrawingSurface& Surface(const std::string& name) override { return RecordingSurfaceNamed(name); }
  ControlSite& Site(const std::string& name) override { return Child(sites_, name); }
  TextBox& TextField(const std::string& name) override { return TextBoxNamed(name); }
  Label& LabelNamed(const std::string& name) override { return Child(labels_, name); }

  // --- for tests ---
  RecordingSurface& RecordingSurfaceNamed(const std::string& name) { return Child(surfaces_, name); }
  TestTextBox& TextBoxNamed(const std::string& name) { return Child(textBoxes_, name); }
  void ClickControl(const std::string& control, std::int32_t index = 0) { events_.ControlClick(control, index); }
  void LeaveControl(const std::string& control) { events_.ControlLostFocus(control); }
  void CloseFromTitleBar() { UnloadWithMode(unloadmode::ControlMenu); }
  // Another window took the activation.
  void Deactivate() {
    if (loaded_) events_.Form_Deactivate();
  }
  // A key pressed while the window is active (the form sees it first).
  void PressKey(std::int16_t keyCode, std::int16_t shift = 0) {
    if (loaded_) events_.Form_KeyDown(keyCode, shift);
  }
  // The script a modal show runs in place of the user; set by the window system.
  std::function<void(TestForm&)> ModalScript;
  // A modal show whose script ended without unloading the form; the show returns
  // anyway (a test must never hang), and the test can assert on this.
  bool ModalLeftOpen = false;
  static constexpr std::int32_t BorderTwips = 60;

 private:
  // The child of that name, made on first use.
  template <class T>
  static T& Child(std::map<std::string, std::unique_ptr<T>>& children, const std::string& name) {
    auto& slot = children[name];
    if (!slot) slot = std::make_unique<T>();
    return *slot;
  }
  void UnloadWithMode(std::int32_t mode) {
    if (!loaded_) return;
    bool cancel = false;
    events_.Form_QueryUnload(cancel, mode);
    if (cancel) return;
    loaded_ = false;
    visible_ = false;
    events_.Form_Unload();
  }

  FormEvents& events_;
  WindowHandle handle_;
  std::string caption_;
  std::int32_t left_ = 0;
  std::int32_t top_ = 0;
  std::int32_t width_ = 4800;
  std::int32_t height_ = 3600;
  bool loaded_ = true;
  bool visible_ = false;
  std::map<std::string, std::unique_ptr<RecordingSurface>> surfaces_;
  std::map<std::string, std::unique_ptr<RecordingSite>> sites_;
  std::map<std::string, std::unique_ptr<TestTextBox>> textBoxes_;
  std::map<std::string, std::unique_ptr<TestLabel>> labels_;
};

}  // namespace lumo::testing
