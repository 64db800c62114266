#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxEvents.h"
#include "colorcombo/CEventPass.h"
#include "colormodel/FormEvents.h"
#include "colormodel/Types.h"

namespace lumo {

class FormWindow;
class HostTimer;
class Runtime;

// The drop-down of a ColorCombo: a borderless window holding one ColorBox
// ("ColorBox1") that it wraps exactly, and a 500 ms timer ("Timer1") that watches the
// activation. It plays the opening effect, passes the colour under the pointer to the
// combo through the combo's relay, writes the outcome into the runtime's PopupResult
// and closes itself. One shared instance is loaded per cycle; the shared reference is
// dropped when it unloads.
//
// Failures are reported under the module "frmDropdown".
class frmDropdown : public FormEvents, public ColorBoxEvents {
 public:
  explicit frmDropdown(Runtime& runtime);
  frmDropdown(const frmDropdown&) = delete;
  frmDropdown& operator=(const frmDropdown&) = delete;
  ~frmDropdown() override;

  // The runtime's shared drop-down, created and installed when there is none.
  static frmDropdown& Instance(Runtime& runtime);

  // Creates the window, the hosted ColorBox and the timer. Does nothing while loaded;
  // loads afresh after an unload.
  void Load();
  bool IsLoaded() const;
  // Shows the window modally; returns once it has unloaded.
  void Show();
  void Unload();

  // --- properties --------------------------------------------------------------------------
  std::int32_t OpenEffect() const { return m_OpenEffect; }
  void SetOpenEffect(std::int32_t value) { m_OpenEffect = value; }
  std::int32_t PickStyle() const { return m_PickStyle; }
  void SetPickStyle(std::int32_t value) { m_PickStyle = value; }
  const std::shared_ptr<CEventPass>& EventPass() const { return m_EventPass; }
  void SetEventPass(std::shared_ptr<CEventPass> value) { m_EventPass = std::move(value); }

  // --- procedures ------------------------------------------------------------------------------
  // Lets ColorBox1 lay itself out (the window follows), keeps the window's bottom on the
  // screen when it opens without an effect, and records the full size.
  void RefreshForm();
  // Takes the window to the size an opening effect starts from, before it is shown.
  void CollapseForEffect();
  // The opening animation: 100 painted rounds from the current to the full size.
  void UnfoldMe();
  // The "More Colors..." path: the dialog over the drop-down, its outcome into ColorBox1.
  void ShowPopup();

  // --- handlers ------------------------------------------------------------------------------
  void ColorBox1_Click(OLE_COLOR lColor, const std::string& sColorName, bool bIsAutomatic);
  void ColorBox1_MoreColorClick();
  void ColorBox1_OverColor(OLE_COLOR lColor, bool bOverAutomatic);
  void ColorBox1_UserCancel();
  void ColorBox1_Resize();
  void Timer1_Timer();

  // FormEvents
  void Form_Activate() override;
  void Form_Deactivate() override;
  void Form_KeyDown(std::int16_t& keyCode, std::int16_t shift) override;
  void Form_QueryUnload(bool& cancel, std::int32_t unloadMode) override;
  void Form_Unload() override;

  // ColorBoxEvents, from ColorBox1
  void OverColor(OLE_COLOR lColor, bool bOverAutomatic) override;
  void Click(OLE_COLOR& lColor, const std::string& sColorName, bool& bIsAutomatic) override;
  void MoreColorClick() override;
  void UserCancel() override;
  void Resize() override;

  // --- for the combo, hosts and tests -------------------------------------------------------
  // Null until loaded; kept after an unload.
  FormWindow* Window() const { return window_.get(); }
  ColorBox* ColorBox1() const { return colorBox_.get(); }
  HostTimer* Timer1() const { return timer_.get(); }
  std::int32_t FullWidth() const { return m_FullWidth; }
  std::int32_t FullHeight() const { return m_FullHeight; }
  bool Prepared() const { return m_Prepared; }
  bool DialogOpen() const { return m_DialogOpen; }

 private:
  template <class Body>
  void Trap(std::string_view label, Body&& body) const;
  void CloseCancelled();
  FormWindow& LoadedWindow() const;
  ColorBox& LoadedColorBox() const;

  Runtime& runtime_;
  // Expires with the form: the animation and the dialog path check it after yielding.
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  // The window outlives what is drawn on it: declared first, destroyed last.
  std::unique_ptr<FormWindow> window_;
  std::unique_ptr<ColorBox> colorBox_;
  std::unique_ptr<HostTimer> timer_;

  std::int32_t m_OpenEffect = 0;
  std::int32_t m_PickStyle = 0;
  std::shared_ptr<CEventPass> m_EventPass;
  std::int32_t m_FullWidth = 0;
  std::int32_t m_FullHeight = 0;
  bool m_Prepared = false;
  bool m_DialogOpen = false;
  bool m_Activated = false;
};

}  // namespace lumo
