#pragma once

#include "colormodel/WindowSystem.h"
#include "qt/FormDesigns.h"
#include "qt/MouseCapture.h"

namespace LumoColorCombo::host {

// The platform's windows on Qt Widgets: the library's forms from their designs, the
// primary screen, mouse capture as a widget's mouse grab that the window system holds
// (see MouseCapture), the active window (an open popup while there is one) and focus
// widget, and processEvents as the yield. Handles are widget addresses, resolved only
// against the live widgets, so a handle that outlived its widget finds nothing.
class QtWindowSystem : public lumo::WindowSystem {
 public:
  std::unique_ptr<lumo::FormWindow> LoadForm(const std::string& name, lumo::FormEvents& events) override;

  std::int32_t ScreenWidth() const override;
  std::int32_t ScreenHeight() const override;

  // Grabs the mouse for the widget; answers the widget that held it before (0 if none).
  // A handle that names no live, visible widget changes nothing. A capture taken before
  // the widget's window is mapped takes effect once it is exposed; it ends when the
  // holder is hidden.
  lumo::WindowHandle SetCapture(lumo::WindowHandle window) override;
  lumo::WindowHandle GetCapture() const override;
  bool ReleaseCapture() override;

  lumo::WindowHandle GetActiveWindow() const override;
  lumo::WindowHandle GetFocus() const override;
  lumo::Point ClientToScreen(lumo::WindowHandle window, lumo::Point point) const override;

  void DoEvents() override;

  // The library's About box (AboutDialog), modal over the window that holds `owner`.
  void ShowAboutBox(lumo::WindowHandle owner) override;

  FormDesigns& designs() { return designs_; }

 private:
  FormDesigns designs_;
  MouseCapture capture_;
};

}  // namespace LumoColorCombo::host
