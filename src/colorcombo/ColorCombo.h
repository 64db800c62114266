#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "colorcombo/CEventPass.h"
#include "colorcombo/CEventPassEvents.h"
#include "colorcombo/ComboPainter.h"
#include "colormodel/ControlEvents.h"
#include "colormodel/Geometry.h"
#include "colormodel/StdFont.h"
#include "colormodel/SurfaceEvents.h"
#include "colormodel/Types.h"

namespace lumo {

class ColorComboEvents;
class ControlSite;
class DrawingSurface;
class PropertyBag;
class Runtime;

// The library's main control: a one-line field that shows the current colour (or the
// automatic text) and, when pressed, drops a palette grid (frmDropdown) under itself.
// A pick there raises the Before/After events and becomes the control's new state;
// while the drop-down is open the colour under the pointer is previewed in the field.
//
// Every procedure traps its own failures and reports them under the module
// "LumoDropdown"; nothing is thrown to the host. The host may destroy the control from
// any of its event handlers, or while the drop-down is open: the cycle then ends at
// once without touching the control again.
class ColorCombo : public SurfaceEvents, public ControlEvents {
 public:
  // Registers as the surface's listener and as the site's control, then runs
  // UserControl_Initialize. The host follows with InitProperties or ReadProperties.
  ColorCombo(Runtime& runtime, DrawingSurface& picScreen, ControlSite& site, ColorComboEvents& events);
  ColorCombo(const ColorCombo&) = delete;
  ColorCombo& operator=(const ColorCombo&) = delete;
  // Runs UserControl_Terminate and detaches from the surface and the site.
  ~ColorCombo() override;

  // --- properties (published order of the type library) --------------------------------
  // Every setter notifies the host with its own label, also after a reported failure.
  bool AllowHotTracking() const { return m_AllowHotTracking; }
  void SetAllowHotTracking(bool value);
  bool AllowAutoColorBox() const { return m_AllowAutoColorBox; }
  void SetAllowAutoColorBox(bool value);
  // Shown by cscButton; its "&" marks the access key.
  const std::string& Caption() const { return m_Caption; }
  void SetCaption(const std::string& value);
  // Stored as a plain number: a value outside CCStyleConstants draws no frame.
  std::int32_t Style() const { return m_Style; }
  void SetStyle(std::int32_t value);
  std::int32_t OpenEffect() const { return m_OpenEffect; }
  void SetOpenEffect(std::int32_t value);
  // A value outside ComboPickStyles is stored as cpsStandard.
  std::int32_t PickStyle() const { return m_PickStyle; }
  void SetPickStyle(std::int32_t value);
  bool Enabled() const { return m_Enabled; }
  void SetEnabled(bool value);
  // Shows the library's About box over the control's window.
  void AboutBox();
  const std::string& AutomaticText() const { return m_AutomaticText; }
  void SetAutomaticText(const std::string& value);
  const std::string& MoreColorsText() const { return m_MoreColorsText; }
  void SetMoreColorsText(const std::string& value);
  // Always false while AllowAutomatic is false. Silent: raises no event.
  bool IsAutomatic() const { return m_IsAutomatic; }
  void SetIsAutomatic(bool value);
  OLE_COLOR AutoColor() const { return m_AutoColor; }
  void SetAutoColor(OLE_COLOR value);
  // Silent: raises no event and redraws only the colour bar.
  OLE_COLOR Color() const { return m_Color; }
  void SetColor(OLE_COLOR value);
  OLE_COLOR ForeColor() const { return m_ForeColor; }
  void SetForeColor(OLE_COLOR value);
  OLE_COLOR BackColor() const { return m_BackColor; }
  void SetBackColor(OLE_COLOR value);
  // The font held by the control; the surface's font while it holds none.
  StdFont Font() const;
  // Also the surface's font; the control's height follows it.
  void SetFont(const StdFont& value);
  bool AllowAutomatic() const { return m_AllowAutomatic; }
  void SetAllowAutomatic(bool value);
  bool AllowMoreColors() const { return m_AllowMoreColors; }
  void SetAllowMoreColors(bool value);
  // Redraws everything: background, enabled state, frame by style, colour bar.
  void Refresh();

  // Runs one drop-down cycle: BeforeDropDown, the drop-down shown modally under the
  // control, then the pick applied with its events, and AfterDropUp.
  void PressButton();

  // --- members for hosts and tests --------------------------------------------------------
  bool HasFocus() const { return m_HasFocus; }
  void SetHasFocus(bool value);  // redraws; no change notification
  // The relay the drop-down reports the colour under the pointer through.
  std::shared_ptr<CEventPass> EventPass() const;
  void SetEventPass(std::shared_ptr<CEventPass> value);
  // The name of the colour last picked in the drop-down.
  const std::string& LastColorName() const { return m_LastColorName; }
  void SetLastColorName(const std::string& value) { m_LastColorName = value; }
  // The drop button's rectangle in surface pixels; its bottom is where the drop-down opens.
  const Rect& DropButtonRect() const { return m_ButtonRect; }
  bool DropButtonPressed() const { return m_ButtonPressed; }
  // True from the modal show of the drop-down until it returns.
  bool DroppedDown() const { return m_DroppedDown; }
  // The control's height in pixels: the font's text height plus 8.
  std::int32_t GetHeight() const;
  // 13 for cscDropDown and cscCombobox, 0 otherwise.
  std::int32_t GetButtonWidth() const;

  // --- life cycle and focus, delivered by the site (ControlEvents) --------------------------
  void UserControl_Initialize();
  void UserControl_InitProperties() override;
  void UserControl_ReadProperties(const PropertyBag& bag) override;
  void UserControl_WriteProperties(PropertyBag& bag) const override;
  // Fixes the height from the font and lays the surface over the control.
  void UserControl_Resize() override;
  void UserControl_Show() override;
  void UserControl_EnterFocus() override;
  void UserControl_ExitFocus() override;
  void UserControl_AccessKeyPress(std::int16_t keyAscii) override;
  void UserControl_KeyDown(std::int16_t keyCode, std::int16_t shift);
  void UserControl_Terminate();

  // --- surface input (SurfaceEvents), reported under the picScreen_* labels -----------
  void MouseDown(std::int16_t button, std::int16_t shift, double x, double y) override;
  void MouseUp(std::int16_t button, std::int16_t shift, double x, double y) override;
  void DblClick() override;
  // Keys on the field are the control's: UserControl_KeyDown.
  void KeyDown(std::int16_t& keyCode, std::int16_t shift) override;

 private:
  // Hears the relay and hands its OverColor to m_EventPass_OverColor.
  class RelayListener : public CEventPassEvents {
   public:
    explicit RelayListener(ColorCombo& combo) : combo_(combo) {}
    void OverColor(OLE_COLOR lColor, bool bOverAutomatic) override;

   private:
    ColorCombo& combo_;
  };

  template <class Body>
  void Trap(std::string_view label, Body&& body) const;
  template <class Body>
  void TrapAndNotify(std::string_view label, Body&& body);

  void SetInitialState();
  void EnsureEventPass();
  bool UserMode() const;

  // Drawing, each under its own label.
  void DrawDropButton(bool pressed);
  void DrawFrameDD();
  void DrawFrameCB();
  void DrawFrameButton();
  void DrawColorBar();
  void ShowColorBar();
  void CalculateAccessKey();
  Rect ButtonRect() const;
  ComboPainter::ColorBar BarLook() const;

  // The drop-down cycle, step by step. Each answers false when the control did not
  // survive an event handler or the modal show, or when a handler cancelled.
  void ApplyPick(OLE_COLOR oldColor);
  bool ApplyAutomatic(bool value);
  bool ApplyColor(OLE_COLOR oldColor);
  void m_EventPass_OverColor(OLE_COLOR lColor, bool bOverAutomatic);

  Runtime& runtime_;
  DrawingSurface& picScreen;  // the drawing surface keeps its platform name
  ControlSite& site_;
  ColorComboEvents& events_;
  ComboPainter painter_;
  RelayListener relayListener_;
  // Expires with the control: a procedure that resumes after an event or the modal show
  // holds a weak copy and checks it before touching the control again.
  std::shared_ptr<bool> m_Alive = std::make_shared<bool>(true);

  bool m_AllowAutomatic = true;
  bool m_AllowMoreColors = true;
  OLE_COLOR m_AutoColor = 0;
  bool m_IsAutomatic = true;
  std::optional<StdFont> m_Font;
  OLE_COLOR m_BackColor = 0;
  OLE_COLOR m_ForeColor = 0;
  OLE_COLOR m_Color = 0;
  std::string m_AutomaticText;
  std::string m_MoreColorsText;
  std::string m_LastColorName;
  bool m_HasFocus = false;
  bool m_Enabled = true;
  std::int32_t m_PickStyle = 0;
  std::int32_t m_OpenEffect = 0;
  std::int32_t m_Style = 0;
  std::string m_Caption;
  bool m_AllowAutoColorBox = true;
  bool m_AllowHotTracking = true;
  std::shared_ptr<CEventPass> m_EventPass;

  bool m_MousePressed = false;
  bool m_Terminating = false;
  bool m_Refreshing = false;
  bool m_Resizing = false;
  bool m_DroppedDown = false;
  bool m_ButtonPressed = false;
  Rect m_ButtonRect;
};

}  // namespace lumo
