#include "colorhexagon/ColorHexagon.h"

#include "colorhexagon/HexagonGeometry.h"
#include "colorhexagon/HexagonNavigation.h"
#include "colorhexagon/HexagonTable.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/HostTimer.h"
#include "colormodel/Label.h"
#include "colormodel/PropertyBag.h"
#include "colormodel/Runtime.h"
#include "colormodel/TextRules.h"
#include "colormodel/WindowSystem.h"

namespace lumo {
namespace {

constexpr const char* kModule = "ColorHexagon";
constexpr std::int32_t kSelectionPenWidth = 2;

// Arrow keys to HexagonNavigation directions; 0 for any other key.
std::int32_t DirectionOfKey(std::int16_t keyCode) {
  switch (keyCode) {
    case keycode::Left: return HexagonNavigation::Left;
    case keycode::Up: return HexagonNavigation::Up;
    case keycode::Right: return HexagonNavigation::Right;
    case keycode::Down: return HexagonNavigation::Down;
    default: return 0;
  }
}

// The pen of the mark: every bit of the colour's low 24 bits flipped, so the mark
// stands out on any cell.
OLE_COLOR Inverse(OLE_COLOR color) { return ~color & 0xFFFFFF; }

}  // namespace

template <class Body>
void ColorHexagon::Trap(std::string_view procedure, Body&& body) const {
  errors_.Trap(kModule, procedure, alive_, std::forward<Body>(body));
}

ColorHexagon::ColorHexagon(Runtime& runtime, DrawingSurface& picScreen, Label& lblOverColor,
                           ControlSite& site, ColorHexagonEvents& events)
    : runtime_(runtime),
      errors_(runtime.Errors()),
      globals_(runtime.Errors()),
      picScreen_(picScreen),
      lblOverColor_(lblOverColor),
      site_(site),
      events_(events) {
  picScreen_.SetListener(this);
  timer1_ = runtime_.Timers().CreateTimer([this] { Timer1_Timer(); });
  timer1_->SetInterval(TimerIntervalMs);
  timer1_->SetEnabled(true);
  UserControl_Initialize();
  // Attached once initialised, so the container's events never reach a half-made control.
  site_.Attach(this);
}

ColorHexagon::~ColorHexagon() {
  if (site_.Control() == this) site_.Attach(nullptr);
  UserControl_Terminate();
  timer1_.reset();
  if (picScreen_.Listener() == this) picScreen_.SetListener(nullptr);
}

// --- properties ----------------------------------------------------------------------------

void ColorHexagon::SetIsAutomatic(bool value) {
  Trap("IsAutomatic", [&] {
    if (value == isAutomatic_) return;
    isAutomatic_ = value;
    if (value) {
      // Drawing no cell leaves the old mark on screen: automatic is shown by the
      // host, not by the honeycomb.
      DrawShape(nullptr, true);
      picScreen_.Refresh();
    }
    events_.IsAutomaticChanged(value);
  });
}

void ColorHexagon::SetColor(OLE_COLOR value) {
  Trap("Color", [&] {
    color_ = value;
    if (isAutomatic_) return;
    CellPtr cell = LiveCells().FindClosest(value);
    if (!cell) throw RuntimeError(err::ObjectNotSet);
    if (cell->Color() == value) {
      DrawShape(cell, true);
    } else {
      // A colour outside the table puts the mark on the first cell, not on the
      // nearest one; the event still reports the colour that was set.
      DrawShape(CellAt(1), true);
      cell = std::make_shared<CColorboxEl>(errors_);
      cell->SetColor(value);
    }
    RaiseColorChanged(*cell, NameOf(*cell));
  });
}

// --- methods -------------------------------------------------------------------------------

void ColorHexagon::Refresh() {
  Trap("Refresh", [&] {
    picScreen_.Cls();
    picScreen_.SetBackColor(backColor_);
    // Plain cells are painted by position, which needs no cell object.
    for (std::int32_t index = 1; index <= LiveCells().Count(); ++index) {
      Trap("DrawShape", [&] { PaintCellAt(index); });
    }
    DrawShape(selected_, true);
    // Re-applying the properties re-places the mark for the current colour (and so
    // may raise ColorChanged); IsAutomatic is unchanged and does nothing.
    SetColor(color_);
    SetIsAutomatic(isAutomatic_);
    picScreen_.Refresh();
  });
}

CellPtr ColorHexagon::FindClosest(OLE_COLOR color) const {
  CellPtr result;
  Trap("FindClosest", [&] { result = LiveCells().FindClosest(color); });
  return result;
}

std::int32_t ColorHexagon::GetNextIndex(std::int32_t index, std::int32_t direction) const {
  std::int32_t result = 0;
  Trap("GetNextIndex",
               [&] { result = HexagonNavigation::Next(index, direction, LiveCells().Count()); });
  return result;
}

// --- life cycle ------------------------------------------------------------------------------

void ColorHexagon::UserControl_Initialize() {
  Trap("UserControl_Initialize", [&] {
    PrepareCells();
    ApplyDefaults();
    Refresh();
  });
}

// The container runs this after Initialize for a new placement, so the table is
// loaded a second time and a live control holds every cell twice (136 to 270 repeat
// 1 to 135). Hit tests find the first copy; the keys can walk into the second.
void ColorHexagon::UserControl_InitProperties() {
  Trap("UserControl_InitProperties", [&] {
    PrepareCells();
    ApplyDefaults();
    Refresh();
  });
}

void ColorHexagon::UserControl_ReadProperties(const PropertyBag& bag) {
  Trap("UserControl_ReadProperties", [&] {
    PrepareCells();
    isAutomatic_ = bag.ReadBoolean("IsAutomatic", true);
    automaticText_ = bag.ReadText("AutomaticText", DefaultAutomaticText);
    autoColor_ = bag.ReadLong("AutoColor", sys::ButtonShadow);
    color_ = bag.ReadLong("Color", DefaultColor);
    backColor_ = bag.ReadLong("BackColor", sys::ButtonFace);
    Refresh();
  });
}

void ColorHexagon::UserControl_WriteProperties(PropertyBag& bag) const {
  Trap("UserControl_WriteProperties", [&] {
    bag.WriteProperty("IsAutomatic", Variant(isAutomatic_), Variant(true));
    bag.WriteProperty("AutomaticText", Variant(automaticText_), Variant(DefaultAutomaticText));
    bag.WriteProperty("AutoColor", Variant(autoColor_), Variant(sys::ButtonShadow));
    bag.WriteProperty("Color", Variant(color_), Variant(DefaultColor));
    bag.WriteProperty("BackColor", Variant(backColor_), Variant(sys::ButtonFace));
  });
}

// The control snaps to its content: picScreen at its design size in the corner, the
// hover label right under it, and the control exactly around both. Each step runs
// even when the one before failed.
void ColorHexagon::UserControl_Resize() {
  CommonGlobals::IgnoreErrors([&] { picScreen_.Move(0, 0, ScreenWidthTwips, ScreenHeightTwips); });
  CommonGlobals::IgnoreErrors([&] { lblOverColor_.Move(0, picScreen_.Height()); });
  CommonGlobals::IgnoreErrors([&] {
    site_.Size(picScreen_.Width(), checked::Add(lblOverColor_.Top(), lblOverColor_.Height()));
  });
}

void ColorHexagon::UserControl_Terminate() {
  CommonGlobals::IgnoreErrors([&] { selected_.reset(); });
  CommonGlobals::IgnoreErrors([&] { CurrentColor(nullptr); });
  CommonGlobals::IgnoreErrors([&] {
    if (cells_) cells_->Clear();
  });
  CommonGlobals::IgnoreErrors([&] { cells_.reset(); });
}

// --- input -------------------------------------------------------------------------------------

void ColorHexagon::picScreen_MouseDown(std::int16_t, std::int16_t, double x, double y) {
  Trap("picScreen_MouseDown", [&] {
    downX_ = checked::Round(x);
    downY_ = checked::Round(y);
  });
}

// A click needs the press and the release on the same cell; releasing elsewhere is
// the user's way to cancel.
void ColorHexagon::picScreen_MouseUp(std::int16_t button, std::int16_t shift, double x, double y) {
  Trap("picScreen_MouseUp", [&] {
    clickDone_ = false;
    const std::int32_t upX = checked::Round(x);
    const std::int32_t upY = checked::Round(y);
    const CellPtr cell = LiveCells().GetObject(upX, upY);
    if (!cell || cell != LiveCells().GetObject(downX_, downY_)) return;
    DrawShape(cell, true);
    if (cell->Color() != color_) SetColor(cell->Color());
    SetIsAutomatic(false);
    picScreen_.Refresh();
    clickDone_ = true;
    events_.ColorClick(cell->Color(), NameOf(*cell), button, shift, upX, upY);
  });
}

void ColorHexagon::picScreen_MouseMove(std::int16_t button, std::int16_t shift, double x, double y) {
  Trap("picScreen_MouseMove", [&] {
    const bool inside = 0 <= x && x <= picScreen_.ScaleWidth() && 0 <= y && y <= picScreen_.ScaleHeight();
    if (!inside) {
      hoverGone_ = true;
      runtime_.Windows().ReleaseCapture();
      return;
    }
    const std::int32_t overX = checked::Round(x);
    const std::int32_t overY = checked::Round(y);
    const CellPtr cell = LiveCells().GetObject(overX, overY);
    // Off the cells the texts stay until Timer1 clears them.
    hoverGone_ = !cell;
    if (!cell) return;
    const std::string name = NameOf(*cell);
    lblOverColor_.SetCaption(name);
    picScreen_.SetToolTipText(ToolTipOf(*cell));
    events_.ColorOver(cell->Color(), name, button, shift, overX, overY);
  });
}

void ColorHexagon::picScreen_DblClick() {
  Trap("picScreen_DblClick", [&] {
    if (!clickDone_) return;
    CColorboxEl current(errors_);
    current.SetColor(color_);
    events_.ColorDblClick(color_, NameOf(current));
  });
}

void ColorHexagon::UserControl_KeyDown(std::int16_t keyCode, std::int16_t) {
  Trap("UserControl_KeyDown", [&] {
    if (!selected_) {
      // With nothing selected any key just selects the first cell.
      CurrentColor(CellAt(1));
    } else if (const std::int32_t direction = DirectionOfKey(keyCode); direction != 0) {
      CurrentColor(CellAt(GetNextIndex(selected_->Index(), direction)));
    }
    picScreen_.Refresh();
  });
}

void ColorHexagon::Timer1_Timer() {
  Trap("Timer1_Timer", [&] {
    if (!hoverGone_) return;
    lblOverColor_.SetCaption("");
    picScreen_.SetToolTipText("");
  });
}

void ColorHexagon::MouseDown(std::int16_t button, std::int16_t shift, double x, double y) {
  picScreen_MouseDown(button, shift, x, y);
}
void ColorHexagon::MouseMove(std::int16_t button, std::int16_t shift, double x, double y) {
  picScreen_MouseMove(button, shift, x, y);
}
void ColorHexagon::MouseUp(std::int16_t button, std::int16_t shift, double x, double y) {
  picScreen_MouseUp(button, shift, x, y);
}
void ColorHexagon::DblClick() { picScreen_DblClick(); }
void ColorHexagon::KeyDown(std::int16_t& keyCode, std::int16_t shift) { UserControl_KeyDown(keyCode, shift); }

// --- private ------------------------------------------------------------------------------------

// The part that Initialize, InitProperties and ReadProperties share. The table is
// appended without clearing: see UserControl_InitProperties.
void ColorHexagon::PrepareCells() {
  if (!cells_) cells_ = std::make_unique<CColorboxCol>(errors_);
  picScreen_.SetBackColor(sys::ButtonFace);
  lblOverColor_.SetBackColor(sys::ButtonFace);
  LoadHexColors();
}

void ColorHexagon::ApplyDefaults() {
  color_ = DefaultColor;
  isAutomatic_ = true;
  automaticText_ = DefaultAutomaticText;
  autoColor_ = sys::ButtonShadow;
  backColor_ = sys::ButtonFace;
}

void ColorHexagon::LoadHexColors() {
  Trap("LoadHexColors", [&] {
    LiveCells().AddAll(HexagonTable::Faces());
  });
}

void ColorHexagon::DrawShape(const CellPtr& cell, bool selected) {
  Trap("DrawShape", [&] {
    if (!cell) return;
    if (selected && cell != selected_) DrawShape(selected_, false);  // take the old mark off
    PaintCell(*cell);
    if (!selected) return;
    PaintSelectionMark(*cell);
    selected_ = cell;
    picScreen_.Refresh();
  });
}

// The hexagon filled and outlined in its own colour; stores its hit-test box first.
void ColorHexagon::PaintCell(CColorboxEl& cell) {
  const Rect box = HexagonGeometry::Bounds(cell.X(), cell.Y(), cell.IsLarge());
  cell.SetBounds(box.Left, box.Top, box.Right, box.Bottom);
  PaintHexagon(cell.X(), cell.Y(), cell.IsLarge(), cell.Color());
}

void ColorHexagon::PaintCellAt(std::int32_t index) {
  CColorboxCol& cells = LiveCells();
  const CellFace& face = cells.Face(index);
  const Rect box = HexagonGeometry::Bounds(face.X, face.Y, face.IsLarge);
  cells.SetBounds(index, box.Left, box.Top, box.Right, box.Bottom);
  PaintHexagon(face.X, face.Y, face.IsLarge, face.Color);
}

// Takes values, not the cell: the drawing calls reach the host, which may change the cells.
void ColorHexagon::PaintHexagon(std::int32_t x, std::int32_t y, bool large, OLE_COLOR color) {
  picScreen_.SetForeColor(color);
  picScreen_.SetFillColor(color);
  picScreen_.SetFillStyle(fill::Solid);
  picScreen_.Polygon(HexagonGeometry::Outline(x, y, large));
  picScreen_.SetFillStyle(fill::Transparent);
}

void ColorHexagon::PaintSelectionMark(const CColorboxEl& cell) {
  picScreen_.SetForeColor(Inverse(cell.Color()));
  picScreen_.SetDrawWidth(kSelectionPenWidth);
  picScreen_.Polygon(HexagonGeometry::SelectionMark(HexagonGeometry::Outline(cell.X(), cell.Y(), cell.IsLarge())));
  picScreen_.SetDrawWidth(1);
}

// The keyboard's way to select: the colour field changes without the Color setter,
// so IsAutomatic stays as it is. The third event argument is the decimal colour
// wrapped like a name, unlike the setter's; kept on purpose: hosts rely on both forms.
void ColorHexagon::CurrentColor(const CellPtr& cell) {
  Trap("CurrentColor", [&] {
    if (!cell) return;
    color_ = cell->Color();
    DrawShape(cell, true);
    RaiseColorChanged(*cell, globals_.FormatHexText(text::Decimal(cell->Color())));
  });
}

void ColorHexagon::RaiseColorChanged(const CColorboxEl& cell, const std::string& colorHex) {
  events_.ColorChanged(cell.Color(), NameOf(cell), colorHex);
}

std::string ColorHexagon::ToolTipOf(const CColorboxEl& cell) const {
  return cell.GetColorString() + " (" + cell.GetColorStringHex() + ")";
}

CellPtr ColorHexagon::CellAt(std::int32_t index) const { return LiveCells().Item(index); }

std::string ColorHexagon::NameOf(const CColorboxEl& cell) const {
  return globals_.FormatHexText(cell.GetColorString());
}

CColorboxCol& ColorHexagon::LiveCells() const {
  if (!cells_) throw RuntimeError(err::ObjectNotSet);
  return *cells_;
}

}  // namespace lumo
