#pragma once

#include <cstdint>
#include <string>

#include "colormodel/ControlEvents.h"
#include "colormodel/StdFont.h"
#include "colormodel/Types.h"

namespace lumo {

class PropertyBag;

// What a control asks of the container it sits in: change notification, the
// container's ambient properties, and its own outer size and state.
class ControlSite {
 public:
  virtual ~ControlSite() = default;

  // A persisted property changed: the host should save the control again.
  virtual void PropertyChanged(const std::string& /*name*/) {}

  virtual StdFont AmbientFont() const { return {}; }
  // False while a form designer shows the control, true at run time.
  virtual bool AmbientUserMode() const { return true; }
  virtual std::string AmbientDisplayName() const { return {}; }

  // The control's outer size, in twips.
  virtual std::int32_t Width() const = 0;
  virtual std::int32_t Height() const = 0;
  virtual void Size(std::int32_t width, std::int32_t height) = 0;

  virtual void SetEnabled(bool /*enabled*/) {}
  // The characters that, with Alt, give the control the focus.
  virtual void SetAccessKeys(const std::string& /*keys*/) {}
  virtual WindowHandle hWnd() const { return 0; }

  // The control placed on this site, to which the host delivers the life-cycle and
  // focus events (ControlEvents); null detaches it. A control attaches itself when it
  // is created and detaches when it is destroyed.
  void Attach(ControlEvents* control) { control_ = control; }
  ControlEvents* Control() const { return control_; }

  // Starts the attached control as a container does once it has created it: placed
  // new (InitProperties) or loaded from a form file (ReadProperties), never both, then
  // given its place (Resize). Hosted controls on the library's forms start the same way.
  void StartControl(const PropertyBag* bag) {
    if (control_ == nullptr) return;
    if (bag != nullptr) {
      control_->UserControl_ReadProperties(*bag);
    } else {
      control_->UserControl_InitProperties();
    }
    if (control_ != nullptr) control_->UserControl_Resize();
  }
  // Saves the attached control into a form file's bag.
  void SaveControl(PropertyBag& bag) const {
    if (control_ != nullptr) control_->UserControl_WriteProperties(bag);
  }

 private:
  ControlEvents* control_ = nullptr;
};

}  // namespace lumo
