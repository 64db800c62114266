#include "colorsample/ColorSample.h"

#include <utility>

#include "colormodel/CheckedMath.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/Enums.h"
#include "colormodel/PropertyBag.h"
#include "colormodel/Runtime.h"
#include "colormodel/WindowSystem.h"

namespace lumo {
namespace {

constexpr const char* kModule = "ColorSample";

// Initial values, which are also the defaults of the persisted keys (the font's default
// is the host's ambient font).
constexpr OLE_COLOR kDefaultBackColor = 0xFFFFFF;
constexpr OLE_COLOR kDefaultForeColor = 0;
constexpr const char* kDefaultText = "Sample Text";
constexpr std::int32_t kDefaultBorderStyle = bcFixedSingle;

constexpr OLE_COLOR kBlack = 0;

}  // namespace

template <class Body>
void ColorSample::Trap(std::string_view label, Body&& body) const {
  runtime_.Errors().Trap(kModule, label, m_Alive, std::forward<Body>(body));
}

template <class Body>
void ColorSample::TrapAndNotify(std::string_view label, Body&& body) {
  runtime_.Errors().TrapAndNotify(kModule, label, site_, m_Alive, std::forward<Body>(body));
}

ColorSample::ColorSample(Runtime& runtime, DrawingSurface& surface, ControlSite& site)
    : runtime_(runtime), picScreen(surface), site_(site) {
  site_.Attach(this);
  UserControl_Initialize();
}

ColorSample::~ColorSample() {
  UserControl_Terminate();
  if (site_.Control() == this) site_.Attach(nullptr);
}

// --- members ---------------------------------------------------------------------------

void ColorSample::AboutBox() const {
  Trap("AboutBox", [&] { runtime_.Windows().ShowAboutBox(site_.hWnd()); });
}

void ColorSample::SetBackColor(OLE_COLOR value) {
  TrapAndNotify("BackColor [Let]", [&] {
    m_BackColor = value;
    Refresh();
  });
}

void ColorSample::SetBorderStyle(std::int32_t value) {
  TrapAndNotify("BorderStyle [Let]", [&] {
    m_BorderStyle = value;
    Refresh();
  });
}

std::optional<StdFont> ColorSample::Font() const {
  std::optional<StdFont> font;
  Trap("Font", [&] { font = m_Font; });
  return font;
}

void ColorSample::SetFont(const std::optional<StdFont>& value) {
  // The object setter reports as "Font [Let]"; hosts match on that label.
  TrapAndNotify("Font [Let]", [&] {
    m_Font = value ? *value : site_.AmbientFont();
    Refresh();
  });
}

void ColorSample::SetText(const std::string& value) {
  TrapAndNotify("Text [Let]", [&] {
    m_Text = value;
    Refresh();
  });
}

void ColorSample::SetForeColor(OLE_COLOR value) {
  TrapAndNotify("ForeColor [Let]", [&] {
    m_ForeColor = value;
    Refresh();
  });
}

// --- drawing -------------------------------------------------------------------------------

void ColorSample::Refresh() {
  Trap("Refresh", [&] {
    if (m_Font) picScreen.SetFont(*m_Font);
    const std::int32_t textWidth = checked::Round(picScreen.TextWidth(m_Text));
    const std::int32_t textHeight = checked::Round(picScreen.TextHeight(m_Text));
    picScreen.SetBackColor(m_BackColor);
    picScreen.SetForeColor(m_ForeColor);
    picScreen.Cls();
    // The halving truncates toward zero: an odd slack leaves its extra pixel on the
    // right, and a text larger than the surface is cut on both sides, never wrapped.
    picScreen.SetCurrentX(checked::Div(checked::Sub(picScreen.ScaleWidth(), textWidth), 2));
    picScreen.SetCurrentY(checked::Div(checked::Sub(picScreen.ScaleHeight(), textHeight), 2));
    picScreen.Print(m_Text);
    if (m_BorderStyle == bcFixedSingle) DrawBorder();
    picScreen.Refresh();
  });
}

void ColorSample::DrawBorder() {
  // Drawn after the text, so it may cover the text's outermost pixels. The fill stays
  // transparent and the black pen stays set until the next Refresh.
  Trap("DrawBorder", [&] {
    picScreen.SetForeColor(kBlack);
    picScreen.Rectangle(0, 0, picScreen.ScaleWidth(), picScreen.ScaleHeight());
  });
}

// --- life cycle ----------------------------------------------------------------------------

void ColorSample::SetInitialState() {
  // Members, not setters: no change notification per property.
  m_BackColor = kDefaultBackColor;
  m_ForeColor = kDefaultForeColor;
  m_BorderStyle = kDefaultBorderStyle;
  m_Text = kDefaultText;
}

void ColorSample::UserControl_Initialize() {
  // The ambient font is the container's, which the control does not know yet: it keeps
  // the surface's font until it is placed or loaded.
  Trap("UserControl_Initialize", [&] {
    SetInitialState();
    Refresh();
  });
}

void ColorSample::UserControl_InitProperties() {
  Trap("UserControl_InitProperties", [&] {
    SetInitialState();
    m_Font = site_.AmbientFont();
    Refresh();
  });
}

void ColorSample::UserControl_ReadProperties(const PropertyBag& bag) {
  Trap("UserControl_ReadProperties", [&] {
    // A missing key gives its default; a value that does not convert fails the read
    // here, which reports it, and the keys after it keep what they had.
    m_BackColor = bag.ReadLong("BackColor", kDefaultBackColor);
    m_ForeColor = bag.ReadLong("ForeColor", kDefaultForeColor);
    m_Text = bag.ReadText("Text", kDefaultText);
    m_BorderStyle = bag.ReadLong("BorderStyle", kDefaultBorderStyle);
    m_Font = bag.ReadFont("Font", site_.AmbientFont());
    Refresh();
  });
}

void ColorSample::UserControl_WriteProperties(PropertyBag& bag) const {
  Trap("UserControl_WriteProperties", [&] {
    const StdFont ambient = site_.AmbientFont();
    bag.WriteProperty("BackColor", Variant(m_BackColor), Variant(kDefaultBackColor));
    bag.WriteProperty("ForeColor", Variant(m_ForeColor), Variant(kDefaultForeColor));
    bag.WriteProperty("Text", Variant(m_Text), Variant(kDefaultText));
    bag.WriteProperty("BorderStyle", Variant(m_BorderStyle), Variant(kDefaultBorderStyle));
    // A control without a font draws in the ambient one; saving it as such keeps the
    // form file free of an empty entry.
    bag.WriteProperty("Font", Variant(m_Font.value_or(ambient)), Variant(ambient));
  });
}

void ColorSample::UserControl_Resize() {
  // Failures are ignored: a control resized to nothing simply draws nothing.
  CommonGlobals::IgnoreErrors([&] {
    picScreen.Move(0, 0, site_.Width(), site_.Height());
    Refresh();
  });
}

void ColorSample::UserControl_Terminate() {
  CommonGlobals::IgnoreErrors([&] { m_Font.reset(); });
}

}  // namespace lumo
