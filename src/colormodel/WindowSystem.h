#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "colormodel/Geometry.h"
#include "colormodel/Types.h"

namespace lumo {

class FormEvents;
class FormWindow;

// The platform's windows: the library's forms, the screen, mouse capture, activation,
// focus and the event-processing yield.
class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  // Creates the named form ("frmPopup", "frmDropdown") with its designed children,
  // hidden. Its events go to `events`, which must outlive the window.
  virtual std::unique_ptr<FormWindow> LoadForm(const std::string& name, FormEvents& events) = 0;

  virtual std::int32_t ScreenWidth() const = 0;   // twips
  virtual std::int32_t ScreenHeight() const = 0;  // twips

  // Mouse capture: SetCapture answers the previous holder.
  virtual WindowHandle SetCapture(WindowHandle window) = 0;
  virtual WindowHandle GetCapture() const = 0;
  virtual bool ReleaseCapture() = 0;

  virtual WindowHandle GetActiveWindow() const = 0;
  virtual WindowHandle GetFocus() const = 0;
  // A point in a window's client pixels to screen pixels.
  virtual Point ClientToScreen(WindowHandle window, Point point) const = 0;

  // Lets pending window messages run.
  virtual void DoEvents() = 0;

  // Shows the library's About box modally over the window that holds `owner`; returns
  // when it is closed. A host without one shows nothing.
  virtual void ShowAboutBox(WindowHandle /*owner*/) {}
};

}  // namespace lumo
