#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace lumo {
class FormEvents;
}

namespace LumoColorCombo::host {

class QtFormWindow;

// The designs of the library's forms by name: what each window holds and how it looks.
// Comes with "frmPopup" and "frmDropdown"; a name without a design loads as an empty
// window whose children are all made on demand.
class FormDesigns {
 public:
  using Builder = std::function<void(QtFormWindow&)>;

  FormDesigns();

  void add(const std::string& formName, Builder builder);
  bool contains(const std::string& formName) const { return builders_.count(formName) != 0; }
  // A new, hidden window of that form, its events going to `events`.
  std::unique_ptr<QtFormWindow> load(const std::string& formName, lumo::FormEvents& events) const;

 private:
  std::map<std::string, Builder> builders_;
};

}  // namespace LumoColorCombo::host
