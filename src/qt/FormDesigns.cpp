#include "qt/FormDesigns.h"

#include "qt/DropdownDesign.h"
#include "qt/PopupDesign.h"
#include "qt/QtFormWindow.h"

namespace LumoColorCombo::host {

FormDesigns::FormDesigns() {
  add("frmPopup", &PopupDesign::build);
  add("frmDropdown", &DropdownDesign::build);
}

void FormDesigns::add(const std::string& formName, Builder builder) { builders_[formName] = std::move(builder); }

std::unique_ptr<QtFormWindow> FormDesigns::load(const std::string& formName, lumo::FormEvents& events) const {
  auto form = std::make_unique<QtFormWindow>(QString::fromStdString(formName), events);
  if (const auto found = builders_.find(formName); found != builders_.end()) found->second(*form);
  return form;
}

}  // namespace LumoColorCombo::host
