#include "support/TestForm.h"

#include "colormodel/ControlEvents.h"

namespace lumo::testing {

TestForm::TestForm(std::string name, FormEvents& events, WindowHandle handle)
    : name_(std::move(name)), events_(events), handle_(handle) {}

void TestForm::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
}

// Becoming visible shows the hosted controls and activates the window, as a window
// system does when it maps a window; the modal script runs after that.
void TestForm::Show(bool modal) {
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

void TestForm::UnloadWithMode(std::int32_t mode) {
  if (!loaded_) return;
  bool cancel = false;
  events_.Form_QueryUnload(cancel, mode);
  if (cancel) return;
  loaded_ = false;
  visible_ = false;
  events_.Form_Unload();
}

void TestForm::ClickControl(const std::string& control, std::int32_t index) {
  events_.ControlClick(control, index);
}

void TestForm::LeaveControl(const std::string& control) { events_.ControlLostFocus(control); }

void TestForm::Deactivate() {
  if (loaded_) events_.Form_Deactivate();
}

void TestForm::PressKey(std::int16_t keyCode, std::int16_t shift) {
  if (loaded_) events_.Form_KeyDown(keyCode, shift);
}

}  // namespace lumo::testing
