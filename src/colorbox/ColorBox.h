#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "colorbox/ColorBoxLayout.h"
#include "colorbox/ColorBoxPainter.h"
#include "colorbox/ColorBoxPalettes.h"
#include "colormodel/CColorboxCol.h"
#include "colormodel/ControlEvents.h"
#include "colormodel/Geometry.h"
#include "colormodel/SurfaceEvents.h"
#include "colormodel/Types.h"

namespace lumo {

class ColorBoxEvents;
class ControlSite;
class DrawingSurface;
class HostTimer;
class PropertyBag;
class Runtime;

// The palette grid: an optional Automatic button, one of fifteen palettes of colour
// cells and an optional More Colors button, all drawn on one surface (`picScreen`)
// that the control sizes to its content. Public on its own and also the content of
// a ColorCombo's drop-down, which relays its events.
//
// Every procedure traps its own failures and reports them under the module
// "ColorBox"; nothing is thrown to the host. Its container delivers the life-cycle
// events through the site (ControlEvents), wherever the grid is placed.
class ColorBox : public SurfaceEvents, public ControlEvents {
 public:
  // The control's Timer1 ticks every 500 ms while the tooltip logic wants it.
  static constexpr std::int32_t TimerInterval = 500;

  // Registers as the surface's listener, creates the (disabled) timer and runs
  // UserControl_Initialize, so a new control is painted and sized at once; then
  // attaches to the site, which delivers the container's events from there on.
  ColorBox(Runtime& runtime, DrawingSurface& picScreen, ControlSite& site, ColorBoxEvents& events);
  ColorBox(const ColorBox&) = delete;
  ColorBox& operator=(const ColorBox&) = delete;
  ~ColorBox() override;

  // --- properties (published order of the type library) -----------------------------
  // Stored as a plain number: a value outside ComboPickStyles is kept and loads nothing.
  std::int32_t PickStyle() const { return m_PickStyle; }
  void SetPickStyle(std::int32_t value);
  // The name of the last chosen cell. Choosing Automatic or More Colors leaves it as it
  // was (an Automatic Click passes it on); a left release that chooses nothing empties it.
  const std::string& ColorName() const { return m_ColorName; }
  // Not published: the combo hands its last pick's name to the grid of its drop-down, so
  // that an Automatic pick there passes that name on. Stores only.
  void SetColorName(const std::string& value) { m_ColorName = value; }
  OLE_COLOR AutoColor() const { return m_AutoColor; }
  void SetAutoColor(OLE_COLOR value);
  const std::string& AutomaticText() const { return m_AutomaticText; }
  void SetAutomaticText(const std::string& value);
  const std::string& MoreColorsText() const { return m_MoreColorsText; }
  void SetMoreColorsText(const std::string& value);
  bool IsAutomatic() const { return m_IsAutomatic; }
  // Stores only: no repaint and no change notification.
  void SetIsAutomatic(bool value) { m_IsAutomatic = value; }
  OLE_COLOR Color() const { return m_Color; }
  void SetColor(OLE_COLOR value);
  bool AllowAutomatic() const { return m_AllowAutomatic; }
  void SetAllowAutomatic(bool value);
  bool AllowMoreColors() const { return m_AllowMoreColors; }
  void SetAllowMoreColors(bool value);

  // Reloads the palette, sizes the surface and the control, repaints everything and
  // raises Resize. Does nothing at all while PickStyle is -1.
  void Refresh();

  // --- life cycle: Initialize and Terminate run from the constructor and destructor,
  // the rest comes from the container through the site ------------------------------
  void UserControl_Initialize();
  void UserControl_InitProperties() override;
  void UserControl_ReadProperties(const PropertyBag& bag) override;
  void UserControl_WriteProperties(PropertyBag& bag) const override;
  void UserControl_Show() override;
  void UserControl_Resize() override;
  void UserControl_Terminate();

  // --- surface input (SurfaceEvents), reported under the picScreen_* labels ---------
  void MouseDown(std::int16_t button, std::int16_t shift, double x, double y) override;
  void MouseMove(std::int16_t button, std::int16_t shift, double x, double y) override;
  void MouseUp(std::int16_t button, std::int16_t shift, double x, double y) override;
  void KeyDown(std::int16_t& keyCode, std::int16_t shift) override;
  void LostFocus() override;
  void Timer1_Timer();

  // --- state for hosts and tests --------------------------------------------------------
  // The cells as last loaded; null once UserControl_Terminate has released them.
  const CColorboxCol* Cells() const { return m_Colors.get(); }
  std::int32_t Columns() const { return m_Palettes.Columns(); }
  const std::string& RowGapMarker() const { return m_Palettes.RowGapMarker(); }
  std::int32_t FocusZone() const { return m_FocusZone; }
  const CellPtr& HotCell() const { return m_HotCell; }
  std::int32_t HotIndex() const { return m_HotIndex; }
  bool AutoHot() const { return m_AutoHot; }
  bool MoreHot() const { return m_MoreHot; }
  // Button rectangles in surface pixels, every edge inclusive for hit tests.
  const Rect& AutoRect() const { return m_AutoRect; }
  const Rect& MoreRect() const { return m_MoreRect; }
  bool InEvent() const { return m_InEvent; }
  HostTimer& Timer1() { return *m_Timer1; }
  const HostTimer& Timer1() const { return *m_Timer1; }

  // Whether a point lies on the Automatic or the More Colors button.
  bool OverAutoText(double x, double y) const;
  bool OverMoreText(double x, double y) const;

  // Occurrences of `sFind` in `sText`, counted as the text it removes divided by its
  // length; `lCompare` 1 ignores case. An empty `sFind` is a division by zero (11),
  // thrown to the calling procedure's trap.
  static std::int32_t StrCount(std::string_view sText, std::string_view sFind, std::int32_t lCompare) {
    return ColorBoxLayout::StrCount(sText, sFind, lCompare);
  }

 private:
  template <class Body>
  void Trap(std::string_view label, Body&& body) const;
  template <class Body>
  void TrapAndNotify(std::string_view label, Body&& body);
  template <class Raise>
  void RaiseGuarded(Raise&& raise);

  void StartAfresh(std::string_view label);
  void SetInitialState();
  CColorboxCol& Colors() const;

  // Refresh, step by step.
  void LoadPalette();
  ColorBoxLayout Layout() const;
  void SizeToContent();
  void PaintAutomaticButton(std::int32_t x, std::int32_t& y, std::int32_t surfaceWidth);
  void PaintRowGaps(std::int32_t x, std::int32_t y);
  void PaintMoreColorsButton(std::int32_t x, std::int32_t& y);

  void DrawButton(CellPtr cell, bool bHot);
  void DrawPlainButton(std::int32_t index);
  void MakeHot(const CellPtr& cell, std::int32_t index);
  Point CellOrigin(std::int32_t index) const;
  std::int32_t GridLeft() const;
  void DrawAutoBorder(bool bHot);
  void DrawMoreColorBorder(bool bHot);
  void RepaintHotCellPlain();
  std::int32_t GetAreaWidth() const;
  std::int32_t GetTextHeight() const;
  void SetDefaultToolTips();
  void SetValue();

  void PointerOffCells(double x, double y);
  void TrackToolTipTime();
  void ChooseCell(const CellPtr& cell);
  void CancelPick();
  void ApplyKey(std::int16_t keyCode);
  void ChooseInZone();
  bool OutsideSurface(double x, double y) const;

  Runtime& runtime_;
  DrawingSurface& picScreen;  // the drawing surface keeps its platform name
  ControlSite& site_;
  // Expires with the control: a procedure whose host deletes the control midway
  // reports and notifies nothing.
  std::shared_ptr<bool> m_Alive = std::make_shared<bool>(true);
  ColorBoxEvents& events_;
  ColorBoxPainter painter_;
  std::unique_ptr<HostTimer> m_Timer1;

  std::unique_ptr<CColorboxCol> m_Colors;
  ColorBoxPalettes m_Palettes;
  // Refresh does nothing while PickStyle equals this; it is -1 and never changes.
  std::int32_t m_NoStyle = -1;
  // The style whose cells the list holds, and that list: a Refresh of the same style
  // keeps them.
  std::int32_t m_LoadedStyle = -1;
  const CColorboxCol* m_LoadedInto = nullptr;
  // The row gaps of the loaded cells (ColorBoxLayout::GapsAboveRows), for drawing them.
  std::vector<std::int32_t> m_GapsAbove;

  std::int32_t m_PickStyle = 0;
  OLE_COLOR m_Color = 0;
  bool m_IsAutomatic = true;
  OLE_COLOR m_AutoColor = 0;
  std::string m_AutomaticText;
  std::string m_MoreColorsText;
  bool m_AllowAutomatic = true;
  bool m_AllowMoreColors = true;
  std::string m_ColorName;

  Rect m_AutoRect;
  Rect m_MoreRect;
  CellPtr m_HotCell;
  std::int32_t m_HotIndex = 0;
  std::int32_t m_FocusZone = 1;
  bool m_AutoHot = false;
  bool m_MoreHot = false;
  bool m_InEvent = false;

  Point m_Press;
  Point m_LastMouse;
  float m_LastTipTime = 0.0F;
};

}  // namespace lumo
