#pragma once

#include <cstdint>
#include <string>

#include "colormodel/Types.h"

namespace lumo {

class ControlSite;
class DrawingSurface;
class Label;
class TextBox;

// One of the library's own top-level windows (the drop-down, the More Colors dialog).
// Positions and sizes are twips. The children named by the form's design are reached
// by name; a hosted control is a surface plus a site of the same name.
class FormWindow {
 public:
  virtual ~FormWindow() = default;

  virtual WindowHandle hWnd() const = 0;
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;

  virtual std::int32_t Left() const = 0;
  virtual std::int32_t Top() const = 0;
  virtual std::int32_t Width() const = 0;        // outer
  virtual std::int32_t Height() const = 0;       // outer
  virtual std::int32_t ScaleWidth() const = 0;   // inner (client), twips
  virtual std::int32_t ScaleHeight() const = 0;  // inner (client), twips
  virtual void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) = 0;

  // Shows the window. A modal show returns only once the window has been unloaded;
  // timers and other events keep running meanwhile.
  virtual void Show(bool modal) = 0;
  // Form_QueryUnload (mode Code), then, unless cancelled, hides the window, runs
  // Form_Unload and ends a modal show. The object stays valid until destroyed.
  virtual void Unload() = 0;
  virtual bool IsLoaded() const = 0;
  virtual void Refresh() {}

  virtual DrawingSurface& Surface(const std::string& name) = 0;
  virtual ControlSite& Site(const std::string& name) = 0;
  virtual TextBox& TextField(const std::string& name) = 0;
  // A label; a hosted control's own label is named "<control>.<label>".
  virtual Label& LabelNamed(const std::string& name) = 0;
};

}  // namespace lumo
