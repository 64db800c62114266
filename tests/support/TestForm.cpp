#include "support/TestForm.h"

namespace lumo::testing {

TestForm::TestForm(std::string name, FormEvents& events, WindowHandle handle)
    : name_(std::move(name)), events_(events), handle_(handle) {}

void TestForm::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
}

void TestForm::Show(bool modal) {
  visible_ = true;
  if (!modal) return;
  ++ModalShows;
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

RecordingSurface& TestForm::RecordingSurfaceNamed(const std::string& name) {
  auto& slot = surfaces_[name];
  if (!slot) slot = std::make_unique<RecordingSurface>();
  return *slot;
}

RecordingSite& TestForm::SiteNamed(const std::string& name) {
  auto& slot = sites_[name];
  if (!slot) slot = std::make_unique<RecordingSite>();
  return *slot;
}

TestTextBox& TestForm::TextBoxNamed(const std::string& name) {
  auto& slot = textBoxes_[name];
  if (!slot) slot = std::make_unique<TestTextBox>();
  return *slot;
}

TestLabel& TestForm::TestLabelNamed(const std::string& name) {
  auto& slot = labels_[name];
  if (!slot) slot = std::make_unique<TestLabel>();
  return *slot;
}

void TestForm::ClickControl(const std::string& control, std::int32_t index) {
  events_.ControlClick(control, index);
}

void TestForm::LeaveControl(const std::string& control) { events_.ControlLostFocus(control); }

}  // namespace lumo::testing
