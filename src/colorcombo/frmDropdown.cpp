#include "colorcombo/frmDropdown.h"

#include "colorcombo/DropdownFormDesign.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/Enums.h"
#include "colormodel/FormWindow.h"
#include "colormodel/HostTimer.h"
#include "colormodel/Runtime.h"
#include "colormodel/WindowSystem.h"
#include "morecolors/frmPopup.h"

namespace lumo {
namespace {

constexpr const char* kModule = "frmDropdown";
constexpr std::int32_t kRounds = 100;

}  // namespace

template <class Body>
void frmDropdown::Trap(std::string_view label, Body&& body) const {
  runtime_.Errors().Trap(kModule, label, std::forward<Body>(body));
}

frmDropdown::frmDropdown(Runtime& runtime) : runtime_(runtime) {}

frmDropdown::~frmDropdown() = default;

frmDropdown& frmDropdown::Instance(Runtime& runtime) {
  if (frmDropdown* shared = runtime.SharedForm<frmDropdown>()) return *shared;
  runtime.SetSharedForm(std::make_unique<frmDropdown>(runtime));
  return *runtime.SharedForm<frmDropdown>();
}

void frmDropdown::Load() {
  Trap("Load", [&] {
    if (IsLoaded()) return;
    // What was drawn on the old window goes before it does.
    timer_.reset();
    colorBox_.reset();
    window_ = runtime_.Windows().LoadForm(DropdownFormDesign::FormName, *this);
    m_Activated = false;
    m_Prepared = false;
    m_DialogOpen = false;
    colorBox_ = std::make_unique<ColorBox>(runtime_, window_->Surface(DropdownFormDesign::ColorBoxName),
                                           window_->Site(DropdownFormDesign::ColorBoxName), *this);
    timer_ = runtime_.Timers().CreateTimer([this] { Timer1_Timer(); });
    timer_->SetInterval(DropdownFormDesign::TimerInterval);
    timer_->SetEnabled(true);
  });
}

bool frmDropdown::IsLoaded() const { return window_ && window_->IsLoaded(); }

void frmDropdown::Show() {
  Trap("Show", [&] { LoadedWindow().Show(true); });
}

void frmDropdown::Unload() {
  Trap("Unload", [&] { LoadedWindow().Unload(); });
}

// --- procedures --------------------------------------------------------------------------------

void frmDropdown::RefreshForm() {
  Trap("RefreshForm", [&] {
    LoadedColorBox().Refresh();  // its Resize wraps the window round it
    FormWindow& window = LoadedWindow();
    if (m_OpenEffect == oecNone &&
        checked::Add(window.Top(), window.Height()) > runtime_.Windows().ScreenHeight()) {
      // No room below the field: the window opens above the field's lower edge.
      window.Move(window.Left(), checked::Sub(window.Top(), window.Height()), window.Width(), window.Height());
    }
    m_FullWidth = window.Width();
    m_FullHeight = window.Height();
    m_Prepared = true;
  });
}

// Both dimensions collapse to the frame and one pixel; the slide gets its full width
// back on activation and only grows downward, the unfold grows both ways.
void frmDropdown::CollapseForEffect() {
  Trap("CollapseForEffect", [&] {
    FormWindow& window = LoadedWindow();
    const std::int32_t width = checked::Add(checked::Sub(window.Width(), window.ScaleWidth()), TwipsPerPixel);
    const std::int32_t height = checked::Add(checked::Sub(window.Height(), window.ScaleHeight()), TwipsPerPixel);
    window.Move(window.Left(), window.Top(), width, height);
  });
}

void frmDropdown::UnfoldMe() {
  Trap("UnfoldMe", [&] {
    FormWindow& window = LoadedWindow();
    WindowSystem& windows = runtime_.Windows();
    // Room for the full size on the screen first, so the growth never runs off it.
    std::int32_t left = window.Left();
    std::int32_t top = window.Top();
    if (checked::Add(left, m_FullWidth) > windows.ScreenWidth()) left = checked::Sub(windows.ScreenWidth(), m_FullWidth);
    if (checked::Add(top, m_FullHeight) > windows.ScreenHeight()) top = checked::Sub(windows.ScreenHeight(), m_FullHeight);
    window.Move(left, top, window.Width(), window.Height());

    // Whole-twip steps; the remainder of each division is made up at the end.
    const std::int32_t stepWidth = checked::Div(checked::Sub(m_FullWidth, window.Width()), kRounds);
    const std::int32_t stepHeight = checked::Div(checked::Sub(m_FullHeight, window.Height()), kRounds);
    const std::weak_ptr<bool> alive = alive_;
    for (std::int32_t round = 1; round <= kRounds; ++round) {
      window.Move(window.Left(), window.Top(), checked::Add(window.Width(), stepWidth),
                  checked::Add(window.Height(), stepHeight));
      window.Refresh();
      windows.DoEvents();
      // A click elsewhere may close the window meanwhile: nothing is left to open then.
      if (alive.expired() || !window.IsLoaded()) return;
    }
    window.Move(window.Left(), window.Top(), m_FullWidth, m_FullHeight);
    m_Prepared = false;
  });
}

void frmDropdown::ShowPopup() {
  Trap("ShowPopup", [&] {
    ColorBox& box = LoadedColorBox();
    frmPopup& dialog = frmPopup::Instance(runtime_);
    dialog.SetAllowAutomatic(box.AllowAutomatic());
    dialog.SetAutomaticText(box.AutomaticText());
    dialog.SetAutoColor(box.AutoColor());
    dialog.SetMoreColorsText(box.MoreColorsText());
    dialog.SetIsAutomatic(box.IsAutomatic());
    dialog.SetColor(box.Color());
    dialog.SetCurrentColor(box.Color());
    dialog.SetupColorBox();

    // Losing the activation to the dialog is no cancel.
    const std::weak_ptr<bool> alive = alive_;
    m_DialogOpen = true;
    dialog.Show();
    if (alive.expired()) return;
    m_DialogOpen = false;

    if (runtime_.PopupResultAt(0).ToBoolean()) {
      box.SetIsAutomatic(runtime_.PopupResultAt(2).ToBoolean());
      box.SetColor(runtime_.PopupResultAt(1).ToLong());
      box.SetColorName(runtime_.PopupResultAt(3).ToText());
    }
    // The combo reads the dialog's record as the drop-down's own.
    LoadedWindow().Unload();
  });
}

void frmDropdown::CloseCancelled() {
  runtime_.ResetPopupResult();
  LoadedWindow().Unload();
}

// --- handlers --------------------------------------------------------------------------------------

void frmDropdown::ColorBox1_Click(OLE_COLOR lColor, const std::string& sColorName, bool bIsAutomatic) {
  Trap("ColorBox1_Click", [&] {
    runtime_.ReDimPopupResult(4);
    auto& result = runtime_.PopupResult();
    result[0] = Variant(true);
    result[1] = Variant(lColor);
    result[2] = Variant(bIsAutomatic);
    result[3] = Variant(sColorName);
    LoadedWindow().Unload();
  });
}

void frmDropdown::ColorBox1_MoreColorClick() {
  Trap("ColorBox1_MoreColorClick", [&] { ShowPopup(); });
}

void frmDropdown::ColorBox1_OverColor(OLE_COLOR lColor, bool bOverAutomatic) {
  Trap("ColorBox1_OverColor", [&] {
    if (m_EventPass) m_EventPass->OverColor(lColor, bOverAutomatic);
  });
}

// The ColorBox has already written its cancel where the user cancelled; a cancel on
// its focus loss leaves the record as the previous cycle left it.
void frmDropdown::ColorBox1_UserCancel() {
  Trap("ColorBox1_UserCancel", [&] { LoadedWindow().Unload(); });
}

// The window wraps the ColorBox exactly, whatever its frame.
void frmDropdown::ColorBox1_Resize() {
  CommonGlobals::IgnoreErrors([&] {
    FormWindow& window = LoadedWindow();
    const ControlSite& box = window.Site(DropdownFormDesign::ColorBoxName);
    window.Move(window.Left(), window.Top(), checked::Add(box.Width(), checked::Sub(window.Width(), window.ScaleWidth())),
                checked::Add(box.Height(), checked::Sub(window.Height(), window.ScaleHeight())));
  });
}

// Another window has taken the activation without the drop-down hearing of it: that
// is a click elsewhere, and closes the drop-down as Form_Deactivate does. Handing the
// activation back instead would take it from the window the user chose. A window that
// has never been active has not lost anything yet.
void frmDropdown::Timer1_Timer() {
  CommonGlobals::IgnoreErrors([&] {
    if (!IsLoaded() || !m_Activated) return;
    if (runtime_.Windows().GetActiveWindow() != LoadedWindow().hWnd()) Form_Deactivate();
  });
}

void frmDropdown::Form_Activate() {
  Trap("Form_Activate", [&] {
    if (m_Activated) return;
    m_Activated = true;
    if (m_OpenEffect == oecSlide) {
      FormWindow& window = LoadedWindow();
      window.Move(window.Left(), window.Top(), m_FullWidth, window.Height());
      UnfoldMe();
    } else if (m_OpenEffect == oecUnfold) {
      UnfoldMe();
    }
  });
}

void frmDropdown::Form_Deactivate() {
  Trap("Form_Deactivate", [&] {
    if (!m_DialogOpen) CloseCancelled();
  });
}

void frmDropdown::Form_KeyDown(std::int16_t& keyCode, std::int16_t /*shift*/) {
  Trap("Form_KeyDown", [&] {
    if (keyCode == keycode::F4) CloseCancelled();
  });
}

void frmDropdown::Form_QueryUnload(bool& /*cancel*/, std::int32_t /*unloadMode*/) {
  Trap("Form_QueryUnload", [&] { m_EventPass.reset(); });
}

// The next cycle loads a fresh window. An unloaded window keeps no timer running and
// no mouse capture for its grid.
void frmDropdown::Form_Unload() {
  Trap("Form_Unload", [&] {
    if (timer_) timer_->SetEnabled(false);
    WindowSystem& windows = runtime_.Windows();
    if (window_ && windows.GetCapture() == window_->Surface(DropdownFormDesign::ColorBoxName).hWnd()) {
      windows.ReleaseCapture();
    }
    if (runtime_.SharedForm<frmDropdown>() == this) runtime_.SetSharedForm<frmDropdown>(nullptr);
  });
}

void frmDropdown::OverColor(OLE_COLOR lColor, bool bOverAutomatic) { ColorBox1_OverColor(lColor, bOverAutomatic); }

void frmDropdown::Click(OLE_COLOR& lColor, const std::string& sColorName, bool& bIsAutomatic) {
  ColorBox1_Click(lColor, sColorName, bIsAutomatic);
}

void frmDropdown::MoreColorClick() { ColorBox1_MoreColorClick(); }

void frmDropdown::UserCancel() { ColorBox1_UserCancel(); }

void frmDropdown::Resize() { ColorBox1_Resize(); }

// --- private ---------------------------------------------------------------------------------------

FormWindow& frmDropdown::LoadedWindow() const {
  if (!window_) throw RuntimeError(err::ObjectNotSet);
  return *window_;
}

ColorBox& frmDropdown::LoadedColorBox() const {
  if (!colorBox_) throw RuntimeError(err::ObjectNotSet);
  return *colorBox_;
}

}  // namespace lumo
