#include "colorbox/ColorBox.h"

#include <utility>

#include "colorbox/ColorBoxEvents.h"
#include "colorbox/ColorBoxKeyboard.h"
#include "colorbox/EventGuard.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/Clock.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/Enums.h"
#include "colormodel/HostTimer.h"
#include "colormodel/PropertyBag.h"
#include "colormodel/Runtime.h"
#include "colormodel/TextRules.h"
#include "colormodel/WindowSystem.h"

namespace lumo {
namespace {

constexpr const char* kModule = "ColorBox";

// Initial values, which are also the defaults of the persisted keys.
constexpr std::int32_t kDefaultPickStyle = cpsStandard;
constexpr OLE_COLOR kDefaultColor = 0x663300;
constexpr bool kDefaultIsAutomatic = true;
constexpr OLE_COLOR kDefaultAutoColor = sys::ButtonShadow;
constexpr const char* kDefaultAutomaticText = "Automatic";
constexpr const char* kDefaultMoreColorsText = "More Colors...";
constexpr bool kDefaultAllowAutomatic = true;
constexpr bool kDefaultAllowMoreColors = true;

// Half a second of rest before the host may show a cell's tooltip.
constexpr float kToolTipDelay = 0.5F;

// The grid's first row starts this far below the top (or below the Automatic button).
constexpr std::int32_t kGridTop = 5;

}  // namespace

template <class Body>
void ColorBox::Trap(std::string_view label, Body&& body) const {
  runtime_.Errors().Trap(kModule, label, m_Alive, std::forward<Body>(body));
}

template <class Body>
void ColorBox::TrapAndNotify(std::string_view label, Body&& body) {
  runtime_.Errors().TrapAndNotify(kModule, label, site_, m_Alive, std::forward<Body>(body));
}

template <class Raise>
void ColorBox::RaiseGuarded(Raise&& raise) {
  EventGuard guard(m_InEvent);
  std::forward<Raise>(raise)();
}

ColorBox::ColorBox(Runtime& runtime, DrawingSurface& surface, ControlSite& site, ColorBoxEvents& events)
    : runtime_(runtime),
      picScreen(surface),
      site_(site),
      events_(events),
      painter_(surface),
      m_Palettes(runtime.Errors()) {
  picScreen.SetListener(this);
  m_Timer1 = runtime_.Timers().CreateTimer([this] { Timer1_Timer(); });
  m_Timer1->SetInterval(TimerInterval);
  m_Timer1->SetEnabled(false);
  UserControl_Initialize();
  // Attached once initialised, so the container's events never reach a half-made control.
  site_.Attach(this);
}

ColorBox::~ColorBox() {
  if (site_.Control() == this) site_.Attach(nullptr);
  m_Timer1->SetEnabled(false);
  UserControl_Terminate();
  if (picScreen.Listener() == this) picScreen.SetListener(nullptr);
}

// --- properties ------------------------------------------------------------------------

void ColorBox::SetPickStyle(std::int32_t value) {
  TrapAndNotify("PickStyle [Let]", [&] {
    m_PickStyle = value;
    Refresh();
  });
}

void ColorBox::SetAutoColor(OLE_COLOR value) {
  TrapAndNotify("AutoColor [Let]", [&] {
    m_AutoColor = value;
    Refresh();
  });
}

void ColorBox::SetAutomaticText(const std::string& value) {
  TrapAndNotify("AutomaticText [Let]", [&] {
    m_AutomaticText = value;
    Refresh();
  });
}

void ColorBox::SetMoreColorsText(const std::string& value) {
  TrapAndNotify("MoreColorsText [Let]", [&] {
    m_MoreColorsText = value;
    Refresh();
  });
}

void ColorBox::SetColor(OLE_COLOR value) {
  TrapAndNotify("Color [Let]", [&] {
    m_Color = value;
    Refresh();
  });
}

void ColorBox::SetAllowAutomatic(bool value) {
  TrapAndNotify("AllowAutomatic [Let]", [&] {
    m_AllowAutomatic = value;
    Refresh();
  });
}

void ColorBox::SetAllowMoreColors(bool value) {
  TrapAndNotify("AllowMoreColors [Let]", [&] {
    m_AllowMoreColors = value;
    Refresh();
  });
}

// --- life cycle ----------------------------------------------------------------------------

void ColorBox::UserControl_Initialize() { StartAfresh("UserControl_Initialize"); }

// A control newly placed by the host starts exactly like a newly created one.
void ColorBox::UserControl_InitProperties() { StartAfresh("UserControl_InitProperties"); }

void ColorBox::StartAfresh(std::string_view label) {
  Trap(label, [&] {
    if (!m_Colors) m_Colors = std::make_unique<CColorboxCol>(runtime_.Errors());
    m_FocusZone = focuszone::Automatic;
    m_NoStyle = -1;
    SetInitialState();
    Refresh();
  });
}

void ColorBox::SetInitialState() {
  // Members, not setters: no Refresh and no change notification per property.
  m_PickStyle = kDefaultPickStyle;
  m_Color = kDefaultColor;
  m_IsAutomatic = kDefaultIsAutomatic;
  m_AutoColor = kDefaultAutoColor;
  m_AutomaticText = kDefaultAutomaticText;
  m_MoreColorsText = kDefaultMoreColorsText;
  m_AllowAutomatic = kDefaultAllowAutomatic;
  m_AllowMoreColors = kDefaultAllowMoreColors;
  m_ColorName.clear();
}

void ColorBox::UserControl_ReadProperties(const PropertyBag& bag) {
  Trap("UserControl_ReadProperties", [&] {
    m_FocusZone = focuszone::Automatic;
    m_NoStyle = -1;
    // A missing key gives its default; a value that does not convert fails the read
    // here, which reports it, and the keys after it keep what they had.
    m_AllowAutomatic = bag.ReadBoolean("AllowAutomatic", kDefaultAllowAutomatic);
    m_AllowMoreColors = bag.ReadBoolean("AllowMoreColors", kDefaultAllowMoreColors);
    m_Color = bag.ReadLong("Color", kDefaultColor);
    m_IsAutomatic = bag.ReadBoolean("IsAutomatic", kDefaultIsAutomatic);
    m_AutomaticText = bag.ReadText("AutomaticText", kDefaultAutomaticText);
    m_MoreColorsText = bag.ReadText("MoreColorsText", kDefaultMoreColorsText);
    m_AutoColor = bag.ReadLong("AutoColor", kDefaultAutoColor);
    m_PickStyle = bag.ReadLong("PickStyle", kDefaultPickStyle);
    Refresh();
  });
}

void ColorBox::UserControl_WriteProperties(PropertyBag& bag) const {
  Trap("UserControl_WriteProperties", [&] {
    bag.WriteProperty("AllowAutomatic", Variant(m_AllowAutomatic), Variant(kDefaultAllowAutomatic));
    bag.WriteProperty("AllowMoreColors", Variant(m_AllowMoreColors), Variant(kDefaultAllowMoreColors));
    bag.WriteProperty("Color", Variant(m_Color), Variant(kDefaultColor));
    bag.WriteProperty("IsAutomatic", Variant(m_IsAutomatic), Variant(kDefaultIsAutomatic));
    bag.WriteProperty("AutomaticText", Variant(m_AutomaticText), Variant(kDefaultAutomaticText));
    bag.WriteProperty("MoreColorsText", Variant(m_MoreColorsText), Variant(kDefaultMoreColorsText));
    bag.WriteProperty("AutoColor", Variant(m_AutoColor), Variant(kDefaultAutoColor));
    bag.WriteProperty("PickStyle", Variant(m_PickStyle), Variant(kDefaultPickStyle));
  });
}

void ColorBox::UserControl_Show() {
  // With the capture on the surface, a press outside the control still arrives here
  // and cancels: that is how a drop-down closes when the user clicks elsewhere.
  Trap("UserControl_Show", [&] {
    WindowSystem& windows = runtime_.Windows();
    if (windows.GetCapture() != picScreen.hWnd()) windows.SetCapture(picScreen.hWnd());
  });
}

void ColorBox::UserControl_Resize() {
  // The control's size follows its content: any resize is answered with the surface's extent.
  CommonGlobals::IgnoreErrors([&] {
    site_.Size(checked::Mul(picScreen.ScaleWidth(), TwipsPerPixel),
               checked::Mul(picScreen.ScaleHeight(), TwipsPerPixel));
  });
}

void ColorBox::UserControl_Terminate() {
  CommonGlobals::IgnoreErrors([&] {
    m_HotCell.reset();
    if (m_Colors) m_Colors->Clear();
    m_Colors.reset();
    m_LoadedInto = nullptr;
  });
}

CColorboxCol& ColorBox::Colors() const {
  if (!m_Colors) throw RuntimeError(err::ObjectNotSet);
  return *m_Colors;
}

// --- layout and drawing ------------------------------------------------------------------

void ColorBox::Refresh() {
  Trap("Refresh", [&] {
    if (m_PickStyle == m_NoStyle) return;
    LoadPalette();
    m_GapsAbove = Layout().GapsAboveRows();
    // Every cell is repainted plain below, so no cell stays hot. The focus zone and
    // the hot index survive: the keyboard carries on from where it was.
    m_HotCell.reset();
    picScreen.SetBackColor(sys::ButtonFace);
    SetDefaultToolTips();
    picScreen.Cls();
    SizeToContent();

    const std::int32_t x = 1;
    std::int32_t y = 1;
    const std::int32_t surfaceWidth = picScreen.ScaleWidth();
    if (m_AllowAutomatic) PaintAutomaticButton(x, y, surfaceWidth);
    PaintRowGaps(x, y);
    y = checked::Add(y, Layout().MarkerHeight());
    for (std::int32_t index = 1; index <= Colors().Count(); ++index) DrawPlainButton(index);
    const std::int32_t rows = Layout().Rows();
    y = checked::Add(y, checked::Add(checked::Add(checked::Mul(rows, 12), checked::Mul(rows, 6)), 2));
    if (m_AllowMoreColors) PaintMoreColorsButton(GridLeft(), y);
    picScreen.Refresh();
    RaiseGuarded([&] { events_.Resize(); });
  });
}

void ColorBox::LoadPalette() {
  // The cells of a style are built (and named below) once; a Refresh of the same
  // style redraws them. Only the palette loader and Terminate change the list.
  CColorboxCol& cells = Colors();
  if (m_PickStyle == m_LoadedStyle && &cells == m_LoadedInto) return;
  if (m_Palettes.Load(m_PickStyle, cells)) {
    m_LoadedStyle = m_PickStyle;
    m_LoadedInto = &cells;
  }
}

ColorBoxLayout ColorBox::Layout() const { return {Columns(), Colors().Count(), RowGapMarker()}; }

void ColorBox::SizeToContent() {
  const Point size = Layout().SurfaceSize(GetTextHeight(), m_AllowAutomatic, m_AllowMoreColors);
  const std::int32_t widthTwips = checked::Mul(size.X, TwipsPerPixel);
  const std::int32_t heightTwips = checked::Mul(size.Y, TwipsPerPixel);
  picScreen.Move(0, 0, widthTwips, heightTwips);
  site_.Size(widthTwips, heightTwips);
}

void ColorBox::PaintAutomaticButton(std::int32_t x, std::int32_t& y, std::int32_t surfaceWidth) {
  const std::int32_t textHeight = GetTextHeight();
  m_AutoRect = {checked::Add(x, 2), y, checked::Add(checked::Sub(surfaceWidth, 4), x), checked::Add(y, textHeight)};
  DrawAutoBorder(false);
  y = checked::Add(y, textHeight);
}

void ColorBox::PaintRowGaps(std::int32_t x, std::int32_t y) {
  // The etched lines start at x = 1, left of the centred grid; that offset is the
  // design and is kept.
  const std::int32_t right = checked::Add(x, GetAreaWidth());
  for (const std::int32_t lineY : Layout().GapLines(y)) painter_.EtchedLine(x, right, lineY);
}

void ColorBox::PaintMoreColorsButton(std::int32_t x, std::int32_t& y) {
  const std::int32_t gridWidth = GetAreaWidth();
  painter_.EtchedLine(x, checked::Add(x, gridWidth), y);
  y = checked::Add(y, 4);
  const std::int32_t textHeight = GetTextHeight();
  painter_.MoreColorsFace(x, y, textHeight, m_MoreColorsText);
  // Only the rectangle is settled here; its frame is drawn by DrawMoreColorBorder.
  m_MoreRect.Left = checked::Sub(x, 2);
  m_MoreRect.Top = checked::Sub(y, 2);
  m_MoreRect.Right = checked::Add(checked::Add(m_MoreRect.Left, gridWidth), 4);
  m_MoreRect.Bottom = checked::Add(m_MoreRect.Top, textHeight);
  y = checked::Add(y, checked::Add(textHeight, 4));
}

void ColorBox::DrawButton(CellPtr cell, bool bHot) {
  // `cell` is a copy: an OverColor handler may Refresh and replace every cell.
  Trap("DrawButton", [&] {
    if (!cell) throw RuntimeError(err::ObjectNotSet);
    const std::int32_t index = cell->Index();
    const Point origin = CellOrigin(index);
    // Every cell of the selected colour is marked, whether or not IsAutomatic is set.
    painter_.CellFrame(origin.X, origin.Y, bHot, cell->Color() == m_Color);
    if (bHot) MakeHot(cell, index);
    const Rect square = painter_.Square(origin.X, origin.Y, cell->Color());
    cell->SetBounds(square.Left, square.Top, square.Right, square.Bottom);
  });
}

// Refresh paints every cell plain by its position, which needs no cell object.
void ColorBox::DrawPlainButton(std::int32_t index) {
  Trap("DrawButton", [&] {
    const OLE_COLOR color = Colors().Face(index).Color;
    const Point origin = CellOrigin(index);
    painter_.CellFrame(origin.X, origin.Y, false, color == m_Color);
    const Rect square = painter_.Square(origin.X, origin.Y, color);
    Colors().SetBounds(index, square.Left, square.Top, square.Right, square.Bottom);
  });
}

void ColorBox::MakeHot(const CellPtr& cell, std::int32_t index) {
  // Only one cell is hot at a time: the one it replaces loses its raised frame, as it
  // does when the focus moves to a button, so keyboard moves leave no trail.
  const CellPtr previous = m_HotCell;
  m_HotCell = cell;
  m_HotIndex = index;
  if (previous && previous != cell) DrawButton(previous, false);
  m_FocusZone = focuszone::Grid;
  DrawAutoBorder(false);
  DrawMoreColorBorder(false);
  const OLE_COLOR color = cell->Color();
  RaiseGuarded([&] { events_.OverColor(color, false); });
  picScreen.SetToolTipText(cell->Name());
}

Point ColorBox::CellOrigin(std::int32_t index) const {
  const std::int32_t gridTop = m_AllowAutomatic ? checked::Add(GetTextHeight(), kGridTop) : kGridTop;
  return Layout().CellOrigin(index, GridLeft(), gridTop, m_GapsAbove);
}

std::int32_t ColorBox::GridLeft() const {
  return checked::Div(checked::Sub(picScreen.ScaleWidth(), GetAreaWidth()), 2);
}

void ColorBox::DrawAutoBorder(bool bHot) {
  Trap("DrawAutoBorder", [&] {
    if (!m_AllowAutomatic) {
      m_AutoHot = false;
      return;
    }
    if (bHot) {
      if (m_FocusZone == focuszone::Grid) RepaintHotCellPlain();
      DrawMoreColorBorder(false);
      m_FocusZone = focuszone::Automatic;
    }
    painter_.AutoButton(m_AutoRect, bHot, m_AutomaticText);
    m_AutoHot = bHot;
  });
}

void ColorBox::DrawMoreColorBorder(bool bHot) {
  Trap("DrawMoreColorBorder", [&] {
    if (!m_AllowMoreColors) {
      m_MoreHot = false;
      return;
    }
    painter_.MoreColorsFrame(m_MoreRect, bHot);
    // Set whatever bHot is: unlike the Automatic button, this flag is never lowered
    // here. The asymmetry is the design and is kept.
    m_MoreHot = true;
    if (bHot) {
      if (m_FocusZone == focuszone::Grid) RepaintHotCellPlain();
      DrawAutoBorder(false);
      m_FocusZone = focuszone::MoreColors;
    }
  });
}

void ColorBox::RepaintHotCellPlain() {
  // There is no hot cell after a Refresh; then there is nothing to repaint.
  if (m_HotCell) DrawButton(m_HotCell, false);
}

std::int32_t ColorBox::GetAreaWidth() const {
  std::int32_t width = 0;
  Trap("GetAreaWidth", [&] { width = ColorBoxLayout::AreaWidth(Columns()); });
  return width;
}

std::int32_t ColorBox::GetTextHeight() const {
  std::int32_t height = 0;
  Trap("GetTextHeight", [&] { height = checked::Round(picScreen.TextHeight("A") + 4); });
  return height;
}

// --- interaction -------------------------------------------------------------------------

void ColorBox::SetDefaultToolTips() {
  // An unnamed cell is named after its colour ("#FF8284 (FF,82,84)"); the name is
  // both its tooltip and what ColorName reports once the cell is chosen. A palette's
  // cells come so named; this names any cell whose name was cleared since.
  Trap("SetDefaultToolTips", [&] {
    CColorboxCol& cells = Colors();
    for (std::int32_t index = 1; index <= cells.Count(); ++index) {
      if (!cells.Face(index).Name.empty()) continue;
      const CellPtr cell = cells.Item(index);
      cell->SetName(ColorBoxPalettes::DefaultName(*cell));
    }
  });
}

void ColorBox::SetValue() {
  Trap("SetValue", [&] {
    RaiseGuarded([&] {
      // Copies: the handler's changes to them stay with the handler.
      OLE_COLOR color = m_Color;
      const std::string name = m_ColorName;
      bool isAutomatic = m_IsAutomatic;
      events_.Click(color, name, isAutomatic);
    });
  });
}

bool ColorBox::OverAutoText(double x, double y) const {
  bool over = false;
  Trap("OverAutoText", [&] {
    over = m_AutoRect.Left <= x && x <= m_AutoRect.Right && m_AutoRect.Top <= y && y <= m_AutoRect.Bottom;
  });
  return over;
}

bool ColorBox::OverMoreText(double x, double y) const {
  bool over = false;
  Trap("OverMoreText", [&] {
    over = m_MoreRect.Left <= x && x <= m_MoreRect.Right && m_MoreRect.Top <= y && y <= m_MoreRect.Bottom;
  });
  return over;
}

bool ColorBox::OutsideSurface(double x, double y) const {
  return x < 0 || y < 0 || x > picScreen.ScaleWidth() || y > picScreen.ScaleHeight();
}

void ColorBox::CancelPick() {
  // A drop-down cycle that ends here must read "not committed".
  runtime_.ResetPopupResult();
  RaiseGuarded([&] { events_.UserCancel(); });
}

void ColorBox::MouseDown(std::int16_t /*button*/, std::int16_t /*shift*/, double x, double y) {
  Trap("picScreen_MouseDown", [&] {
    m_Press = {checked::Round(x), checked::Round(y)};
    // Only a press outside reaches here from beyond the surface, through the capture.
    if (OutsideSurface(x, y)) CancelPick();
  });
}

void ColorBox::MouseMove(std::int16_t /*button*/, std::int16_t /*shift*/, double x, double y) {
  Trap("picScreen_MouseMove", [&] {
    if (x == m_LastMouse.X && y == m_LastMouse.Y) return;
    m_LastMouse = {checked::Round(x), checked::Round(y)};
    const CellPtr cell = Colors().GetObject(m_LastMouse.X, m_LastMouse.Y);
    if (cell) {
      if (cell != m_HotCell) DrawButton(cell, true);
    } else {
      PointerOffCells(x, y);
    }
    TrackToolTipTime();
  });
}

void ColorBox::PointerOffCells(double x, double y) {
  DrawMoreColorBorder(OverMoreText(x, y));
  if (OverAutoText(x, y)) {
    DrawAutoBorder(true);
    RaiseGuarded([&] { events_.OverColor(0, true); });
  } else {
    DrawAutoBorder(false);
  }
  if (m_HotCell) DrawButton(m_HotCell, false);
  m_HotCell.reset();
  picScreen.SetToolTipText("");
}

void ColorBox::TrackToolTipTime() {
  // Moves in quick succession take the capture, so the surface sees the pointer leave
  // and hot frames come off; Timer1 gives it back after half a second of rest.
  const auto now = static_cast<float>(runtime_.ClockService().Timer());
  if (now - m_LastTipTime < kToolTipDelay) {
    runtime_.Windows().SetCapture(picScreen.hWnd());
  } else {
    m_LastTipTime = now;
  }
  m_Timer1->SetEnabled(true);
}

void ColorBox::Timer1_Timer() {
  Trap("Timer1_Timer", [&] {
    const auto now = static_cast<float>(runtime_.ClockService().Timer());
    WindowSystem& windows = runtime_.Windows();
    const bool pointerOnSurface = 0 <= m_LastMouse.X && m_LastMouse.X <= picScreen.ScaleWidth() &&
                                  0 <= m_LastMouse.Y && m_LastMouse.Y <= picScreen.ScaleHeight();
    if (now - m_LastTipTime > kToolTipDelay && windows.GetCapture() != 0 && pointerOnSurface) {
      windows.ReleaseCapture();
      m_LastTipTime = now;
      // Assigning the same text again makes the host show the tip for the resting pointer.
      picScreen.SetToolTipText(std::string(picScreen.ToolTipText()));
      m_Timer1->SetEnabled(false);
    }
  });
}

void ColorBox::MouseUp(std::int16_t button, std::int16_t /*shift*/, double x, double y) {
  Trap("picScreen_MouseUp", [&] {
    if (button == mouse::Left) {
      // The two buttons need press and release on them; a cell needs only the release.
      if (m_AllowAutomatic && OverAutoText(m_Press.X, m_Press.Y) && OverAutoText(x, y)) {
        SetIsAutomatic(true);
        SetValue();
        return;
      }
      if (m_AllowMoreColors && OverMoreText(m_Press.X, m_Press.Y) && OverMoreText(x, y)) {
        RaiseGuarded([&] { events_.MoreColorClick(); });
        return;
      }
      m_ColorName.clear();
      if (const CellPtr cell = Colors().GetObject(checked::Round(x), checked::Round(y))) {
        ChooseCell(cell);
        return;
      }
    }
    // The control's extent is kept in twips by the host; compare in pixels.
    const double width = site_.Width() / static_cast<double>(TwipsPerPixel);
    const double height = site_.Height() / static_cast<double>(TwipsPerPixel);
    if (x < 0 || y < 0 || x > width || y > height) CancelPick();
  });
}

void ColorBox::ChooseCell(const CellPtr& cell) {
  // Through the properties, as a host would set them: the grid repaints with its new
  // selection and the host hears that Color changed, before Click reports the choice.
  SetIsAutomatic(false);
  SetColor(cell->Color());
  m_ColorName = cell->Name();
  SetValue();
}

void ColorBox::KeyDown(std::int16_t& keyCode, std::int16_t /*shift*/) {
  Trap("picScreen_KeyDown", [&] {
    ApplyKey(keyCode);
    // Keys draw directly; show the result without a full Refresh.
    picScreen.Refresh();
  });
}

void ColorBox::ApplyKey(std::int16_t keyCode) {
  using Action = ColorBoxKeyboard::Action;
  const auto outcome = ColorBoxKeyboard::OnKey(keyCode, m_FocusZone, m_HotIndex, Columns(), Colors().Count());
  switch (outcome.action) {
    case Action::Ignore: return;
    case Action::Choose: ChooseInZone(); return;
    case Action::Cancel: CancelPick(); return;
    case Action::HotCell: DrawButton(Colors().Item(outcome.cell), true); return;
    case Action::HotAutomatic:
      DrawAutoBorder(true);
      // The zone changes even when the button is not offered and draws nothing.
      m_FocusZone = focuszone::Automatic;
      return;
    case Action::HotMoreColors:
      DrawMoreColorBorder(true);
      m_FocusZone = focuszone::MoreColors;
      return;
  }
}

void ColorBox::ChooseInZone() {
  switch (m_FocusZone) {
    case focuszone::Automatic:
      SetIsAutomatic(true);
      SetValue();
      return;
    case focuszone::Grid: {
      const CellPtr cell = Colors().Item(m_HotIndex);
      if (!cell) throw RuntimeError(err::ObjectNotSet);
      ChooseCell(cell);
      return;
    }
    case focuszone::MoreColors: RaiseGuarded([&] { events_.MoreColorClick(); }); return;
    default: return;
  }
}

void ColorBox::LostFocus() {
  // Focus taken away by a handler of the control's own event is no cancel.
  Trap("picScreen_LostFocus", [&] {
    if (!m_InEvent) RaiseGuarded([&] { events_.UserCancel(); });
  });
}

}  // namespace lumo
