#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "colorhexagon/ColorHexagonEvents.h"
#include "colormodel/CColorboxCol.h"
#include "colormodel/ControlEvents.h"
#include "colormodel/Globals.h"
#include "colormodel/SurfaceEvents.h"
#include "colormodel/Types.h"

namespace lumo {

class ControlSite;
class DrawingSurface;
class HostTimer;
class Label;
class PropertyBag;
class Runtime;

// The honeycomb colour picker: 135 hexagonal cells painted on `picScreen`, a hover
// label under it, selection by click or arrow keys, five events and five persisted
// properties. The control never scales its content; it sizes itself to it. Its
// container delivers the life-cycle events through the site (ControlEvents).
class ColorHexagon : public SurfaceEvents, public ControlEvents {
 public:
  static constexpr OLE_COLOR DefaultColor = 0x663300;  // the colour of cell 1
  static constexpr const char* DefaultAutomaticText = "Automatic";
  // Design size of picScreen (239 x 249 pixels), which covers every cell.
  static constexpr std::int32_t ScreenWidthTwips = 3585;
  static constexpr std::int32_t ScreenHeightTwips = 3735;
  static constexpr std::int32_t TimerIntervalMs = 100;

  // Listens to picScreen, starts Timer1, runs UserControl_Initialize and attaches to
  // the site.
  ColorHexagon(Runtime& runtime, DrawingSurface& picScreen, Label& lblOverColor, ControlSite& site,
               ColorHexagonEvents& events);
  ColorHexagon(const ColorHexagon&) = delete;
  ColorHexagon& operator=(const ColorHexagon&) = delete;
  // Detaches from the site and runs UserControl_Terminate.
  ~ColorHexagon() override;

  // --- properties ------------------------------------------------------------------
  OLE_COLOR BackColor() const { return backColor_; }
  void SetBackColor(OLE_COLOR color) { backColor_ = color; }  // shown at the next Refresh
  OLE_COLOR AutoColor() const { return autoColor_; }
  void SetAutoColor(OLE_COLOR color) { autoColor_ = color; }
  const std::string& AutomaticText() const { return automaticText_; }
  void SetAutomaticText(const std::string& text) { automaticText_ = text; }
  bool IsAutomatic() const { return isAutomatic_; }
  void SetIsAutomatic(bool value);
  OLE_COLOR Color() const { return color_; }
  void SetColor(OLE_COLOR value);

  // --- methods -----------------------------------------------------------------------
  void Refresh();
  // The cell nearest to `color` (see CColorboxCol::FindClosest); the dialog uses it to
  // tell whether a typed colour can be shown.
  CellPtr FindClosest(OLE_COLOR color) const;
  // The index an arrow key leads to from `index` (HexagonNavigation), over the live
  // cell count; 0 for an unknown direction.
  std::int32_t GetNextIndex(std::int32_t index, std::int32_t direction) const;

  // --- life cycle: Initialize and Terminate run from the constructor and destructor,
  // the rest comes from the container through the site ----------------------------------
  void UserControl_Initialize();
  void UserControl_InitProperties() override;
  void UserControl_ReadProperties(const PropertyBag& bag) override;
  void UserControl_WriteProperties(PropertyBag& bag) const override;
  void UserControl_Resize() override;
  void UserControl_Terminate();

  // --- input -----------------------------------------------------------------------------
  void picScreen_MouseDown(std::int16_t button, std::int16_t shift, double x, double y);
  void picScreen_MouseUp(std::int16_t button, std::int16_t shift, double x, double y);
  void picScreen_MouseMove(std::int16_t button, std::int16_t shift, double x, double y);
  void picScreen_DblClick();
  void UserControl_KeyDown(std::int16_t keyCode, std::int16_t shift);
  void Timer1_Timer();

  // --- for hosts and tests -------------------------------------------------------------------
  // The live cells; null after UserControl_Terminate.
  const CColorboxCol* Cells() const { return cells_.get(); }
  // The cell that carries the selection mark, or null.
  const CellPtr& SelectedCell() const { return selected_; }
  // The tooltip a cell shows under the pointer: "RR,GG,BB (#RRGGBB)".
  std::string ToolTipOf(const CColorboxEl& cell) const;

  // SurfaceEvents: picScreen's input.
  void MouseDown(std::int16_t button, std::int16_t shift, double x, double y) override;
  void MouseMove(std::int16_t button, std::int16_t shift, double x, double y) override;
  void MouseUp(std::int16_t button, std::int16_t shift, double x, double y) override;
  void DblClick() override;
  void KeyDown(std::int16_t& keyCode, std::int16_t shift) override;

 private:
  template <class Body>
  void Trap(std::string_view procedure, Body&& body) const;
  void PrepareCells();
  void ApplyDefaults();
  void LoadHexColors();
  void DrawShape(const CellPtr& cell, bool selected);
  void PaintCell(CColorboxEl& cell);
  void PaintCellAt(std::int32_t index);
  void PaintHexagon(std::int32_t x, std::int32_t y, bool large, OLE_COLOR color);
  void PaintSelectionMark(const CColorboxEl& cell);
  void CurrentColor(const CellPtr& cell);
  void RaiseColorChanged(const CColorboxEl& cell, const std::string& colorHex);
  CellPtr CellAt(std::int32_t index) const;
  std::string NameOf(const CColorboxEl& cell) const;
  CColorboxCol& LiveCells() const;

  Runtime& runtime_;
  const CommonGlobals& errors_;
  Globals globals_;
  DrawingSurface& picScreen_;
  Label& lblOverColor_;
  ControlSite& site_;
  ColorHexagonEvents& events_;
  // Expires with the control: a procedure whose host deletes the control midway
  // reports nothing.
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  std::unique_ptr<HostTimer> timer1_;

  std::unique_ptr<CColorboxCol> cells_;
  CellPtr selected_;
  OLE_COLOR color_ = DefaultColor;
  bool isAutomatic_ = true;
  std::string automaticText_ = DefaultAutomaticText;
  OLE_COLOR autoColor_ = sys::ButtonShadow;
  OLE_COLOR backColor_ = sys::ButtonFace;
  std::int32_t downX_ = 0;
  std::int32_t downY_ = 0;
  bool clickDone_ = false;
  bool hoverGone_ = false;
};

}  // namespace lumo
