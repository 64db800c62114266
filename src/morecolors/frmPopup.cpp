#include "morecolors/frmPopup.h"

#include "colormodel/CColorboxEl.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/ColorChooser.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/FormWindow.h"
#include "colormodel/Runtime.h"
#include "colormodel/TextBox.h"
#include "colormodel/WindowSystem.h"
#include "morecolors/PopupFormDesign.h"

namespace lumo {
namespace {

constexpr const char* kModule = "frmPopup";
constexpr const char* kHexagon = "ColorHexagon1";
constexpr std::int32_t kSwatchMargin = 4;  // pixels of picColorBack
constexpr std::int32_t kOk = 0;
constexpr std::int32_t kCancel = 1;

// picNew and picCurrent sit inside picColorBack, whose scale is pixels, while Move
// takes twips.
std::int32_t Twips(std::int32_t pixels) { return checked::Mul(pixels, TwipsPerPixel); }

}  // namespace

frmPopup::frmPopup(Runtime& runtime) : runtime_(runtime), parser_(runtime.Errors()) {}

frmPopup::~frmPopup() = default;

frmPopup& frmPopup::Instance(Runtime& runtime) {
  if (frmPopup* shared = runtime.SharedForm<frmPopup>()) return *shared;
  runtime.SetSharedForm(std::make_unique<frmPopup>(runtime));
  return *runtime.SharedForm<frmPopup>();
}

void frmPopup::Load() {
  runtime_.Errors().Trap(kModule, "Load", [&] {
    if (IsLoaded()) return;
    hexagon_.reset();  // it draws on the old window's surface
    window_ = runtime_.Windows().LoadForm(PopupFormDesign::FormName, *this);
    window_->SetCaption(PopupFormDesign::Caption);
    hexagon_ = std::make_unique<ColorHexagon>(runtime_, window_->Surface(kHexagon),
                                              window_->LabelNamed(std::string(kHexagon) + ".lblOverColor"),
                                              window_->Site(kHexagon), *this);
    // Placed new on the form: its site starts it, as any container starts its control.
    window_->Site(kHexagon).StartControl(nullptr);
    Form_Load();
  });
}

void frmPopup::Show() {
  runtime_.Errors().Trap(kModule, "Show", [&] {
    Load();
    LoadedWindow().Show(true);
  });
}

bool frmPopup::IsLoaded() const { return window_ && window_->IsLoaded(); }

// --- properties ------------------------------------------------------------------------------

void frmPopup::SetCurrentColor(OLE_COLOR color) {
  runtime_.Errors().Trap(kModule, "CurrentColor [Let]", [&] {
    currentColor_ = color;
    EnsureLoaded();
    LoadedWindow().Surface("picCurrent").SetBackColor(color);
  });
}

std::string frmPopup::MoreColorsText() {
  EnsureLoaded();
  return window_ ? window_->Caption() : std::string();
}

void frmPopup::SetMoreColorsText(const std::string& text) {
  runtime_.Errors().Trap(kModule, "MoreColorsText [Let]", [&] {
    EnsureLoaded();
    LoadedWindow().SetCaption(text);
  });
}

OLE_COLOR frmPopup::Color() {
  EnsureLoaded();
  return hexagon_ ? hexagon_->Color() : ColorHexagon::DefaultColor;
}

void frmPopup::SetColor(OLE_COLOR color) {
  EnsureLoaded();
  if (hexagon_) hexagon_->SetColor(color);
}

bool frmPopup::IsAutomatic() {
  EnsureLoaded();
  return hexagon_ ? hexagon_->IsAutomatic() : true;
}

void frmPopup::SetIsAutomatic(bool value) {
  EnsureLoaded();
  if (hexagon_) hexagon_->SetIsAutomatic(value);
}

// --- procedures ------------------------------------------------------------------------------

void frmPopup::ParseHexText() {
  runtime_.Errors().Trap(kModule, "ParseHexText", [&] {
    // While automatic the text is not read at all.
    if (LoadedHexagon().IsAutomatic()) return Fallback();
    const auto parsed = parser_.Parse(LoadedWindow().TextField("txtColor").Text());
    if (!parsed || !LoadedHexagon().FindClosest(*parsed)) return Fallback();
    // The typed colour itself, not the nearest cell's.
    LoadedHexagon().SetIsAutomatic(false);
    LoadedHexagon().SetColor(*parsed);
  });
}

bool frmPopup::InRange(std::string_view text, std::int32_t low, std::int32_t high) const {
  return parser_.InRange(text, low, high);
}

// The automatic text goes into the box even when automatic is not allowed and the
// colour becomes black; the hexagon's ColorChanged for black then overwrites it.
void frmPopup::Fallback() {
  LoadedWindow().TextField("txtColor").SetText(automaticText_);
  if (allowAutomatic_) {
    LoadedHexagon().SetIsAutomatic(true);
  } else {
    LoadedHexagon().SetIsAutomatic(false);
    LoadedHexagon().SetColor(0);
  }
}

// --- handlers ------------------------------------------------------------------------------------

void frmPopup::Form_Load() {
  runtime_.Errors().Trap(kModule, "Form_Load", [&] { SetupColorBox(); });
}

// The two swatches fill picColorBack with a margin, the new colour above the current.
void frmPopup::SetupColorBox() {
  runtime_.Errors().Trap(kModule, "SetupColorBox", [&] {
    FormWindow& window = LoadedWindow();
    const DrawingSurface& frame = window.Surface("picColorBack");
    const std::int32_t height = checked::Sub(frame.ScaleHeight(), 2 * kSwatchMargin);
    const std::int32_t width = checked::Sub(frame.ScaleWidth(), 2 * kSwatchMargin);
    const std::int32_t half = checked::Div(height, 2);
    window.Surface("picNew").Move(Twips(kSwatchMargin), Twips(kSwatchMargin), Twips(width), Twips(half));
    window.Surface("picCurrent")
        .Move(Twips(kSwatchMargin), Twips(checked::Add(half, kSwatchMargin)), Twips(width), Twips(half));
  });
}

void frmPopup::cmdButton_Click(std::int32_t index) {
  runtime_.Errors().Trap(kModule, "cmdButton_Click", [&] {
    runtime_.ReDimPopupResult(5);  // the fifth entry stays empty: the reader never uses it
    auto& result = runtime_.PopupResult();
    if (index == kOk) {
      result[0] = Variant(true);
      result[1] = Variant(LoadedHexagon().Color());
      result[2] = Variant(LoadedHexagon().IsAutomatic());
      result[3] = Variant(std::string());
    } else if (index == kCancel) {
      result[0] = Variant(false);
    }
    LoadedWindow().Unload();
  });
}

// The chooser opens on whatever colour it last had. Cancel comes back as its error;
// that, like any other failure here, ends the click without a message.
void frmPopup::cmdCustom_Click() {
  CommonGlobals::IgnoreErrors([&] {
    CColorboxEl chosen(runtime_.Errors());
    ColorChooser& chooser = runtime_.Chooser();
    chooser.SetCancelError(true);
    chooser.ShowColor();
    SetColor(chooser.Color());
    chosen.SetColor(chooser.Color());
  });
}

void frmPopup::txtColor_LostFocus() {
  runtime_.Errors().Trap(kModule, "txtColor_LostFocus", [&] { ParseHexText(); });
}

// These two have no trap of their own: a failure lands in the hexagon procedure that
// raised the event, which reports it.
void frmPopup::ColorHexagon1_ColorChanged(OLE_COLOR newColor, const std::string& newColorName) {
  ShowNewColor(newColor, newColorName);
}

void frmPopup::ColorHexagon1_ColorClick(OLE_COLOR color, const std::string& colorName) {
  ShowNewColor(color, colorName);
}

// picNew takes the automatic colour; then the current swatch, not the new one,
// follows the automatic state. Kept on purpose: hosts rely on the swatches doing so.
void frmPopup::ColorHexagon1_IsAutomaticChanged(bool) {
  runtime_.Errors().Trap(kModule, "ColorHexagon1_IsAutomaticChanged", [&] {
    FormWindow& window = LoadedWindow();
    window.Surface("picNew").SetBackColor(autoColor_);
    const ColorHexagon& hexagon = LoadedHexagon();
    window.Surface("picCurrent").SetBackColor(hexagon.IsAutomatic() ? autoColor_ : hexagon.Color());
  });
}

// Only a close from the title bar or system menu writes a cancel here; the buttons
// have already written their own result before unloading.
void frmPopup::Form_QueryUnload(bool&, std::int32_t unloadMode) {
  runtime_.Errors().Trap(kModule, "Form_QueryUnload", [&] {
    if (unloadMode != unloadmode::ControlMenu) return;
    runtime_.ReDimPopupResult(2);
    runtime_.PopupResult()[0] = Variant(false);
  });
}

void frmPopup::Form_Unload() {
  runtime_.Errors().Trap(kModule, "Form_Unload", [&] {
    if (runtime_.SharedForm<frmPopup>() == this) runtime_.SetSharedForm<frmPopup>(nullptr);
  });
}

void frmPopup::ControlClick(const std::string& control, std::int32_t index) {
  if (control == "cmdButton") {
    cmdButton_Click(index);
  } else if (control == "cmdCustom") {
    cmdCustom_Click();
  } else if (control == "cmdSelect") {
    cmdSelect_Click();
  }
}

void frmPopup::ControlLostFocus(const std::string& control) {
  if (control == "txtColor") txtColor_LostFocus();
}

void frmPopup::ColorChanged(OLE_COLOR newColor, const std::string& newColorName, const std::string&) {
  ColorHexagon1_ColorChanged(newColor, newColorName);
}

void frmPopup::IsAutomaticChanged(bool newValue) { ColorHexagon1_IsAutomaticChanged(newValue); }

void frmPopup::ColorClick(OLE_COLOR color, const std::string& colorName, std::int16_t, std::int16_t,
                          std::int32_t, std::int32_t) {
  ColorHexagon1_ColorClick(color, colorName);
}

// --- private ---------------------------------------------------------------------------------------

// A dialog that was never loaded loads on first use of a property, as every form of
// the library does; one that has been unloaded keeps its last state for the caller to read.
void frmPopup::EnsureLoaded() {
  if (!window_) Load();
}

// The new colour is shown in picNew and its text (already "Hex={RR,GG,BB}") in the box.
void frmPopup::ShowNewColor(OLE_COLOR color, const std::string& name) {
  FormWindow& window = LoadedWindow();
  window.Surface("picNew").SetBackColor(color);
  window.TextField("txtColor").SetText(name);
}

FormWindow& frmPopup::LoadedWindow() const {
  if (!window_) throw RuntimeError(err::ObjectNotSet);
  return *window_;
}

ColorHexagon& frmPopup::LoadedHexagon() const {
  if (!hexagon_) throw RuntimeError(err::ObjectNotSet);
  return *hexagon_;
}

}  // namespace lumo
