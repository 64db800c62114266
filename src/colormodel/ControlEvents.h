#pragma once

#include <cstdint>

namespace lumo {

class PropertyBag;

// The life-cycle and focus events a container delivers to the control placed on it.
// Every core control implements this one interface, and every host delivers these
// events through the control's site (ControlSite::Attach), so a control hosted on one
// of the library's own forms (the drop-down's grid, the dialog's honeycomb) gets exactly
// the events of one that an application places. Nothing else calls them by name.
//
// UserControl_Initialize runs in the control's constructor and UserControl_Terminate in
// its destructor: they belong to the object's life, not to the container.
class ControlEvents {
 public:
  virtual ~ControlEvents() = default;

  // Exactly one of the two starts a control: placed new, or loaded from a form file.
  virtual void UserControl_InitProperties() {}
  virtual void UserControl_ReadProperties(const PropertyBag& /*bag*/) {}
  virtual void UserControl_WriteProperties(PropertyBag& /*bag*/) const {}

  // The container changed the control's size.
  virtual void UserControl_Resize() {}
  // The control became visible or hidden in its container's window.
  virtual void UserControl_Show() {}
  virtual void UserControl_Hide() {}

  // The control itself took or lost the focus (a control whose children take the
  // focus gets EnterFocus/ExitFocus instead).
  virtual void UserControl_GotFocus() {}
  virtual void UserControl_LostFocus() {}
  // The focus moved into the control (itself or one of its children) or out of it.
  virtual void UserControl_EnterFocus() {}
  virtual void UserControl_ExitFocus() {}
  // One of the control's access keys was pressed with Alt.
  virtual void UserControl_AccessKeyPress(std::int16_t /*keyAscii*/) {}
};

}  // namespace lumo
