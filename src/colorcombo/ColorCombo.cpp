#include "colorcombo/ColorCombo.h"

#include <utility>

#include "colorcombo/ColorComboEvents.h"
#include "colorcombo/ComboDefaults.h"
#include "colorcombo/FlagWhileAlive.h"
#include "colorcombo/frmDropdown.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/Enums.h"
#include "colormodel/FormWindow.h"
#include "colormodel/PropertyBag.h"
#include "colormodel/Runtime.h"
#include "colormodel/WindowSystem.h"

namespace lumo {
namespace {

constexpr const char* kModule = "LumoDropdown";

// The colour bar's top left corner, inside the frame.
constexpr std::int32_t kBarLeft = 8;
constexpr std::int32_t kBarTop = 4;
constexpr std::int32_t kDropButtonWidth = 13;

std::int32_t Twips(std::int32_t pixels) { return checked::Mul(pixels, TwipsPerPixel); }

}  // namespace

template <class Body>
void ColorCombo::Trap(std::string_view label, Body&& body) const {
  runtime_.Errors().Trap(kModule, label, m_Alive, std::forward<Body>(body));
}

template <class Body>
void ColorCombo::TrapAndNotify(std::string_view label, Body&& body) {
  runtime_.Errors().TrapAndNotify(kModule, label, site_, m_Alive, std::forward<Body>(body));
}

void ColorCombo::RelayListener::OverColor(OLE_COLOR lColor, bool bOverAutomatic) {
  combo_.m_EventPass_OverColor(lColor, bOverAutomatic);
}

ColorCombo::ColorCombo(Runtime& runtime, DrawingSurface& surface, ControlSite& site, ColorComboEvents& events)
    : runtime_(runtime), picScreen(surface), site_(site), events_(events), painter_(surface), relayListener_(*this) {
  picScreen.SetListener(this);
  site_.Attach(this);
  UserControl_Initialize();
}

ColorCombo::~ColorCombo() {
  m_Alive.reset();
  UserControl_Terminate();
  if (picScreen.Listener() == this) picScreen.SetListener(nullptr);
  if (site_.Control() == this) site_.Attach(nullptr);
}

// --- properties ------------------------------------------------------------------------

void ColorCombo::SetAllowHotTracking(bool value) {
  TrapAndNotify("AllowHotTracking [Let]", [&] { m_AllowHotTracking = value; });
}

void ColorCombo::SetAllowAutoColorBox(bool value) {
  TrapAndNotify("AllowAutoColorBox [Let]", [&] {
    m_AllowAutoColorBox = value;
    Refresh();
  });
}

void ColorCombo::SetCaption(const std::string& value) {
  TrapAndNotify("Caption [Let]", [&] {
    m_Caption = value;
    CalculateAccessKey();
    Refresh();
  });
}

void ColorCombo::SetStyle(std::int32_t value) {
  TrapAndNotify("Style [Let]", [&] {
    m_Style = value;
    CalculateAccessKey();
    Refresh();
  });
}

void ColorCombo::SetOpenEffect(std::int32_t value) {
  TrapAndNotify("OpenEffect [Let]", [&] { m_OpenEffect = value; });
}

void ColorCombo::SetPickStyle(std::int32_t value) {
  TrapAndNotify("PickStyle [Let]", [&] { m_PickStyle = value < cpsStandard || value > cpsPalette40 ? 0 : value; });
}

void ColorCombo::SetEnabled(bool value) {
  TrapAndNotify("Enabled [Let]", [&] {
    m_Enabled = value;
    Refresh();
  });
}

void ColorCombo::AboutBox() {
  Trap("AboutBox", [&] { runtime_.Windows().ShowAboutBox(site_.hWnd()); });
}

void ColorCombo::SetAutomaticText(const std::string& value) {
  TrapAndNotify("AutomaticText [Let]", [&] { m_AutomaticText = value; });
}

void ColorCombo::SetMoreColorsText(const std::string& value) {
  TrapAndNotify("MoreColorsText [Let]", [&] { m_MoreColorsText = value; });
}

void ColorCombo::SetIsAutomatic(bool value) {
  TrapAndNotify("IsAutomatic [Let]", [&] {
    m_IsAutomatic = m_AllowAutomatic && value;
    Refresh();
  });
}

void ColorCombo::SetAutoColor(OLE_COLOR value) {
  TrapAndNotify("AutoColor [Let]", [&] { m_AutoColor = value; });
}

// Reported and notified as "Color", without " [Let]"; kept on purpose.
void ColorCombo::SetColor(OLE_COLOR value) {
  TrapAndNotify("Color", [&] {
    m_Color = value;
    ShowColorBar();
  });
}

// "Forecolor" with a lower-case c, as the bag key is spelt.
void ColorCombo::SetForeColor(OLE_COLOR value) {
  TrapAndNotify("Forecolor [Let]", [&] {
    m_ForeColor = value;
    Refresh();
  });
}

void ColorCombo::SetBackColor(OLE_COLOR value) {
  TrapAndNotify("BackColor [Let]", [&] {
    m_BackColor = value;
    Refresh();
  });
}

StdFont ColorCombo::Font() const {
  StdFont font;
  Trap("Font [Get]", [&] { font = m_Font ? *m_Font : picScreen.Font(); });
  return font;
}

void ColorCombo::SetFont(const StdFont& value) {
  TrapAndNotify("Font [Set]", [&] {
    m_Font = value;
    picScreen.SetFont(value);
    UserControl_Resize();
    Refresh();
  });
}

void ColorCombo::SetAllowAutomatic(bool value) {
  TrapAndNotify("AllowAutomatic [Let]", [&] {
    m_AllowAutomatic = value;
    if (!value) {
      m_IsAutomatic = false;
      Refresh();
    }
  });
}

void ColorCombo::SetAllowMoreColors(bool value) {
  TrapAndNotify("AllowMoreColors [Let]", [&] { m_AllowMoreColors = value; });
}

void ColorCombo::SetHasFocus(bool value) {
  Trap("HasFocus [Let]", [&] {
    m_HasFocus = value;
    Refresh();
  });
}

std::shared_ptr<CEventPass> ColorCombo::EventPass() const {
  std::shared_ptr<CEventPass> relay;
  Trap("EventPass [Get]", [&] { relay = m_EventPass; });
  return relay;
}

void ColorCombo::SetEventPass(std::shared_ptr<CEventPass> value) {
  Trap("EventPass [Set]", [&] {
    if (m_EventPass && m_EventPass->Listener() == &relayListener_) m_EventPass->SetListener(nullptr);
    m_EventPass = std::move(value);
    if (m_EventPass) m_EventPass->SetListener(&relayListener_);
  });
}

bool ColorCombo::UserMode() const { return site_.AmbientUserMode(); }

// --- life cycle --------------------------------------------------------------------------

void ColorCombo::UserControl_Initialize() {
  // No relay and no font yet: placing or loading the control brings them.
  Trap("UserControl_Initialize", [&] { SetInitialState(); });
}

void ColorCombo::SetInitialState() {
  m_BackColor = ComboDefaults::BackColor;
  m_ForeColor = ComboDefaults::ForeColor;
  m_AllowAutomatic = ComboDefaults::AllowAutomatic;
  m_AllowMoreColors = ComboDefaults::AllowMoreColors;
  m_AutoColor = ComboDefaults::AutoColor;
  m_Color = ComboDefaults::Color;
  m_AutomaticText = ComboDefaults::AutomaticText;
  m_MoreColorsText = ComboDefaults::MoreColorsText;
  m_IsAutomatic = ComboDefaults::IsAutomatic;
  m_Enabled = ComboDefaults::Enabled;
  m_PickStyle = ComboDefaults::PickStyle;
  m_OpenEffect = ComboDefaults::OpenEffect;
  m_Style = ComboDefaults::Style;
  m_Caption = site_.AmbientDisplayName();
  m_AllowAutoColorBox = ComboDefaults::AllowAutoColorBox;
  m_AllowHotTracking = ComboDefaults::AllowHotTracking;
}

void ColorCombo::EnsureEventPass() {
  if (!m_EventPass) SetEventPass(std::make_shared<CEventPass>());
}

void ColorCombo::UserControl_InitProperties() {
  Trap("UserControl_InitProperties", [&] {
    EnsureEventPass();
    SetInitialState();
    SetFont(site_.AmbientFont());
    CalculateAccessKey();
    Refresh();
  });
}

// Straight into the members: a stored PickStyle is not clamped and a stored
// IsAutomatic is not masked by AllowAutomatic. Only the font goes through its
// property, so that the height follows it.
void ColorCombo::UserControl_ReadProperties(const PropertyBag& bag) {
  Trap("UserControl_ReadProperties", [&] {
    EnsureEventPass();
    m_BackColor = bag.ReadLong("BackColor", ComboDefaults::BackColor);
    m_ForeColor = bag.ReadLong("Forecolor", ComboDefaults::ForeColor);
    m_AllowAutomatic = bag.ReadBoolean("AllowAutomatic", ComboDefaults::AllowAutomatic);
    m_AllowMoreColors = bag.ReadBoolean("AllowMoreColors", ComboDefaults::AllowMoreColors);
    m_Color = bag.ReadLong("Color", ComboDefaults::Color);
    m_AutoColor = bag.ReadLong("AutoColor", ComboDefaults::AutoColor);
    SetFont(bag.ReadFont("Font", site_.AmbientFont()));
    m_AutomaticText = bag.ReadText("AutomaticText", ComboDefaults::AutomaticText);
    m_MoreColorsText = bag.ReadText("MoreColorsText", ComboDefaults::MoreColorsText);
    m_IsAutomatic = bag.ReadBoolean("IsAutomatic", ComboDefaults::IsAutomatic);
    m_Enabled = bag.ReadBoolean("Enabled", ComboDefaults::Enabled);
    m_PickStyle = bag.ReadLong("PickStyle", ComboDefaults::PickStyle);
    m_OpenEffect = bag.ReadLong("OpenEffect", ComboDefaults::OpenEffect);
    m_Style = bag.ReadLong("Style", ComboDefaults::Style);
    m_Caption = bag.ReadText("Caption", ComboDefaults::Caption);
    m_AllowAutoColorBox = bag.ReadBoolean("AllowAutoColorBox", ComboDefaults::AllowAutoColorBox);
    m_AllowHotTracking = bag.ReadBoolean("AllowHotTracking", ComboDefaults::AllowHotTracking);
    CalculateAccessKey();
    Refresh();
  });
}

// Through the getters, except Color and AutoColor (the members) and the font, which is
// the surface's, with the host's font as its default.
void ColorCombo::UserControl_WriteProperties(PropertyBag& bag) const {
  Trap("UserControl_WriteProperties", [&] {
    bag.WriteProperty("BackColor", Variant(BackColor()), Variant(ComboDefaults::BackColor));
    bag.WriteProperty("Forecolor", Variant(ForeColor()), Variant(ComboDefaults::ForeColor));
    bag.WriteProperty("AllowAutomatic", Variant(AllowAutomatic()), Variant(ComboDefaults::AllowAutomatic));
    bag.WriteProperty("AllowMoreColors", Variant(AllowMoreColors()), Variant(ComboDefaults::AllowMoreColors));
    bag.WriteProperty("Color", Variant(m_Color), Variant(ComboDefaults::Color));
    bag.WriteProperty("AutoColor", Variant(m_AutoColor), Variant(ComboDefaults::AutoColor));
    bag.WriteProperty("Font", Variant(picScreen.Font()), Variant(site_.AmbientFont()));
    bag.WriteProperty("AutomaticText", Variant(AutomaticText()), Variant(ComboDefaults::AutomaticText));
    bag.WriteProperty("MoreColorsText", Variant(MoreColorsText()), Variant(ComboDefaults::MoreColorsText));
    bag.WriteProperty("IsAutomatic", Variant(IsAutomatic()), Variant(ComboDefaults::IsAutomatic));
    bag.WriteProperty("Enabled", Variant(Enabled()), Variant(ComboDefaults::Enabled));
    bag.WriteProperty("PickStyle", Variant(PickStyle()), Variant(ComboDefaults::PickStyle));
    bag.WriteProperty("OpenEffect", Variant(OpenEffect()), Variant(ComboDefaults::OpenEffect));
    bag.WriteProperty("Style", Variant(Style()), Variant(ComboDefaults::Style));
    bag.WriteProperty("Caption", Variant(Caption()), Variant(ComboDefaults::Caption));
    bag.WriteProperty("AllowAutoColorBox", Variant(AllowAutoColorBox()), Variant(ComboDefaults::AllowAutoColorBox));
    bag.WriteProperty("AllowHotTracking", Variant(AllowHotTracking()), Variant(ComboDefaults::AllowHotTracking));
  });
}

// The height follows the font and is never the user's: one twip more than the pixel
// height, so that the host's rounding never loses the last row.
void ColorCombo::UserControl_Resize() {
  if (m_Resizing) return;  // the Size below may come back as another resize
  CommonGlobals::IgnoreErrors([&] {
    const FlagWhileAlive resizing(m_Resizing, m_Alive);
    const std::int32_t height = GetHeight();
    site_.Size(site_.Width(), checked::Add(Twips(height), 1));
    picScreen.Move(0, 0, site_.Width(), Twips(height));
    Refresh();
  });
}

void ColorCombo::UserControl_Show() { Refresh(); }

void ColorCombo::UserControl_Terminate() {
  CommonGlobals::IgnoreErrors([&] {
    m_Terminating = true;
    m_Font.reset();
    SetEventPass(nullptr);
    m_Terminating = false;
  });
}

void ColorCombo::UserControl_EnterFocus() {
  Trap("UserControl_EnterFocus", [&] { SetHasFocus(true); });
}

void ColorCombo::UserControl_ExitFocus() {
  Trap("UserControl_ExitFocus", [&] { SetHasFocus(false); });
}

void ColorCombo::UserControl_AccessKeyPress(std::int16_t /*keyAscii*/) {
  Trap("UserControl_AccessKeyPress", [&] { PressButton(); });
}

// The arrow keys and F4 open the drop-down whatever the shift state, so Alt+Down does
// too; every other key is left alone.
void ColorCombo::UserControl_KeyDown(std::int16_t keyCode, std::int16_t /*shift*/) {
  Trap("UserControl_KeyDown", [&] {
    switch (keyCode) {
      case keycode::Left:
      case keycode::Up:
      case keycode::Right:
      case keycode::Down:
      case keycode::F4: PressButton(); return;
      default: return;
    }
  });
}

void ColorCombo::KeyDown(std::int16_t& keyCode, std::int16_t shift) { UserControl_KeyDown(keyCode, shift); }

void ColorCombo::MouseDown(std::int16_t, std::int16_t, double, double) {
  Trap("picScreen_MouseDown", [&] { m_MousePressed = true; });
}

void ColorCombo::MouseUp(std::int16_t, std::int16_t, double, double) {
  Trap("picScreen_MouseUp", [&] {
    if (!m_MousePressed) return;
    m_MousePressed = false;
    PressButton();
  });
}

void ColorCombo::DblClick() {
  Trap("picScreen_DblClick", [&] { events_.DblClick(); });
}

// --- drawing -------------------------------------------------------------------------------

void ColorCombo::Refresh() {
  Trap("Refresh", [&] {
    if (m_Terminating || m_Refreshing) return;
    const FlagWhileAlive refreshing(m_Refreshing, m_Alive);
    picScreen.SetBackColor(m_BackColor);
    // A disabled control stays selectable in a form designer.
    site_.SetEnabled(UserMode() ? m_Enabled : true);
    picScreen.Cls();
    // Settled for every style, so that one without a drop button still opens its
    // drop-down under the field.
    m_ButtonRect = ButtonRect();
    switch (m_Style) {
      case cscCombobox: DrawFrameCB(); break;
      case cscDropDown: DrawFrameDD(); break;
      case cscButton:
      case cscButtonNoText: DrawFrameButton(); break;
      default: break;  // any other style draws no frame, only the colour bar
    }
    DrawColorBar();
    picScreen.Refresh();
  });
}

std::int32_t ColorCombo::GetHeight() const {
  std::int32_t height = 0;
  Trap("GetHeight", [&] { height = checked::Round(picScreen.TextHeight("A") + 4 + 4); });
  return height;
}

std::int32_t ColorCombo::GetButtonWidth() const {
  std::int32_t width = 0;
  Trap("GetButtonWidth", [&] { width = m_Style == cscDropDown || m_Style == cscCombobox ? kDropButtonWidth : 0; });
  return width;
}

Rect ColorCombo::ButtonRect() const {
  Rect button;
  button.Left = checked::Sub(checked::Sub(picScreen.ScaleWidth(), GetButtonWidth()), 2);
  button.Top = 2;
  button.Right = checked::Add(button.Left, GetButtonWidth());
  button.Bottom = checked::Add(2, checked::Sub(GetHeight(), 3));
  return button;
}

// The raised field has an etched separator between its colour bar and the button; the
// sunken field's button stands on its own edge.
void ColorCombo::DrawDropButton(bool pressed) {
  Trap("DrawDropButton", [&] {
    m_ButtonRect = ButtonRect();
    painter_.DropButton(m_ButtonRect, pressed, m_Style == cscDropDown);
    picScreen.Refresh();
    m_ButtonPressed = pressed;
  });
}

// The frames draw the button pressed only while the drop-down is open, so a preview's
// redraw keeps the look; otherwise released, which is how a host that cancelled a
// pick gets the released look back.
void ColorCombo::DrawFrameDD() {
  Trap("DrawFrameDD", [&] {
    painter_.RaisedEdge();
    DrawDropButton(m_DroppedDown);
  });
}

void ColorCombo::DrawFrameCB() {
  Trap("DrawFrameCB", [&] {
    painter_.SunkenField(picScreen.ScaleWidth(), GetHeight());
    DrawDropButton(m_DroppedDown);
  });
}

// The whole control is the button: no drop button is drawn.
void ColorCombo::DrawFrameButton() {
  Trap("DrawFrameButton", [&] { painter_.RaisedButton(picScreen.ScaleWidth(), GetHeight()); });
}

void ColorCombo::DrawColorBar() {
  Trap("DrawColorBar", [&] { painter_.Bar(BarLook()); });
}

// A colour set alone redraws the bar and shows it, without a full Refresh.
void ColorCombo::ShowColorBar() {
  DrawColorBar();
  picScreen.Refresh();
}

ComboPainter::ColorBar ColorCombo::BarLook() const {
  ComboPainter::ColorBar look;
  look.bar = {kBarLeft, kBarTop, checked::Sub(checked::Sub(picScreen.ScaleWidth(), GetButtonWidth()), 8),
              checked::Sub(picScreen.ScaleHeight(), 4)};
  const std::int32_t side = checked::Sub(look.bar.Bottom, look.bar.Top);
  const Rect square{kBarLeft, kBarTop, checked::Add(kBarLeft, side), checked::Add(kBarTop, side)};
  look.swatch = m_IsAutomatic || m_Style == cscButton ? square : look.bar;
  look.back = m_BackColor;
  look.swatchColor = m_IsAutomatic ? m_AutoColor : m_Color;
  // Kept on purpose: with AllowAutoColorBox off, the automatic state shows its text alone.
  look.boxed = m_AllowAutoColorBox || !m_IsAutomatic;
  if (m_Style == cscButton) {
    look.text = m_Caption;
  } else if (m_IsAutomatic) {
    look.text = m_AutomaticText;
  }
  look.textColor = UserMode() && !m_Enabled ? sys::GrayText : m_ForeColor;
  look.focus = m_HasFocus && !m_ButtonPressed;
  return look;
}

// Only cscButton shows its caption, so only it has an access key: the character after
// the first "&". cscButtonNoText has none, on purpose.
void ColorCombo::CalculateAccessKey() {
  Trap("CalculateAccessKey", [&] {
    std::string key;
    if (m_Style == cscButton) {
      const auto mark = m_Caption.find('&');
      if (mark != std::string::npos && mark + 1 < m_Caption.size()) key = m_Caption.substr(mark + 1, 1);
    }
    // The host may refuse an access key; the control carries on without one.
    CommonGlobals::IgnoreErrors([&] { site_.SetAccessKeys(key); });
  });
}

// --- the drop-down cycle ---------------------------------------------------------------------

void ColorCombo::PressButton() {
  Trap("PressButton", [&] {
    // The drop-down does not block the host's other windows everywhere: a press on the
    // field while its own drop-down is still closing must not open a second one.
    if (m_DroppedDown) return;
    const std::weak_ptr<bool> alive = m_Alive;
    bool cancel = false;
    events_.BeforeDropDown(cancel);
    if (alive.expired() || cancel) return;

    const Point screen = runtime_.Windows().ClientToScreen(picScreen.hWnd(), {0, 0});
    frmDropdown& dropdown = frmDropdown::Instance(runtime_);
    dropdown.Load();
    ColorBox* box = dropdown.ColorBox1();
    FormWindow* window = dropdown.Window();
    if (box == nullptr || window == nullptr) throw RuntimeError(err::ObjectNotSet);
    box->SetAllowMoreColors(m_AllowMoreColors);
    box->SetAllowAutomatic(m_AllowAutomatic);
    box->SetAutoColor(m_AutoColor);
    box->SetColor(m_Color);
    box->SetColorName(m_LastColorName);
    box->SetIsAutomatic(m_IsAutomatic);
    box->SetAutomaticText(m_AutomaticText);
    box->SetMoreColorsText(m_MoreColorsText);
    box->SetPickStyle(m_PickStyle);
    dropdown.SetOpenEffect(m_OpenEffect);
    dropdown.SetEventPass(m_EventPass);

    window->Move(Twips(screen.X), Twips(checked::Add(screen.Y, m_ButtonRect.Bottom)), window->Width(),
                 window->Height());
    dropdown.RefreshForm();
    DrawDropButton(true);
    const OLE_COLOR oldColor = m_Color;
    if (m_OpenEffect != oecNone) dropdown.CollapseForEffect();
    {
      const FlagWhileAlive droppedDown(m_DroppedDown, alive);
      dropdown.Show();
    }
    if (alive.expired()) return;
    ApplyPick(oldColor);
  });
}

void ColorCombo::ApplyPick(OLE_COLOR oldColor) {
  if (runtime_.PopupResultAt(0).ToBoolean()) {
    if (!ApplyAutomatic(runtime_.PopupResultAt(2).ToBoolean())) return;
    if (m_IsAutomatic) {
      // The automatic choice keeps the colour as it was before any preview.
      if (m_Color != oldColor) SetColor(oldColor);
    } else if (!ApplyColor(oldColor)) {
      return;
    }
  } else if (m_Color != oldColor) {
    // Only the previewed colour is put back; an automatic state set by a preview
    // stays, on purpose.
    SetColor(oldColor);
  }
  DrawDropButton(false);
  ShowColorBar();
  events_.AfterDropUp();
}

// Raises the IsAutomatic pair when the pick changes it. The set goes through the
// property, so it is masked by AllowAutomatic while the events carry the pick's value.
bool ColorCombo::ApplyAutomatic(bool value) {
  if (value == m_IsAutomatic) return true;
  const std::weak_ptr<bool> alive = m_Alive;
  bool cancel = false;
  events_.BeforeIsAutomaticChanged(value, cancel);
  if (alive.expired() || cancel) return false;
  SetIsAutomatic(value);
  events_.AfterIsAutomaticChanged(value);
  return !alive.expired();
}

// Re-picking the colour in force raises nothing; a pick that only undoes a preview
// raises BeforeColorChanged but not AfterColorChanged.
bool ColorCombo::ApplyColor(OLE_COLOR oldColor) {
  const OLE_COLOR picked = runtime_.PopupResultAt(1).ToLong();
  const bool changed = picked != oldColor;
  m_LastColorName = runtime_.PopupResultAt(3).ToText();
  if (picked == m_Color && !changed) return true;
  const std::weak_ptr<bool> alive = m_Alive;
  bool cancel = false;
  events_.BeforeColorChanged(picked, cancel);
  if (alive.expired() || cancel) return false;
  SetColor(picked);
  if (changed) events_.AfterColorChanged(picked);
  return !alive.expired();
}

// The preview of the colour under the pointer: silent sets, restored by the cycle
// where the pick does not keep them.
void ColorCombo::m_EventPass_OverColor(OLE_COLOR lColor, bool bOverAutomatic) {
  Trap("m_EventPass_OverColor", [&] {
    if (!m_AllowHotTracking) return;
    if (bOverAutomatic) {
      if (!m_IsAutomatic) SetIsAutomatic(true);
      return;
    }
    if (m_IsAutomatic) SetIsAutomatic(false);
    if (m_Color != lColor) SetColor(lColor);
  });
}

}  // namespace lumo
