#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "colorbox/ColorBox.h"
#include "colorcombo/ColorCombo.h"
#include "colorcombo/ColorComboEvents.h"
#include "colorcombo/frmDropdown.h"
#include "colormodel/TextRules.h"
#include "support/MemoryPropertyBag.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"

namespace lumo::testing {

using Lines = std::vector<std::string>;

// Cells of the drop-down's standard palette that the tests pick, by their 1-based index.
inline constexpr std::int32_t kBlack = 1, kWhite = 2, kGreen = 3;
inline constexpr OLE_COLOR kGreenColor = 0x008200, kWhiteColor = 0xFFFFFF;

// The open drop-down as the user meets it: the window, its grid and the grid's surface.
struct Dropdown {
  TestHost& host;
  TestForm& form;
  ColorBox& box;
  RecordingSurface& grid;

  Point Cell(std::int32_t index) const {
    const auto cell = box.Cells()->Item(index);
    return {cell->BoundLeft() + 6, cell->BoundTop() + 6};
  }
  static Point Centre(const Rect& r) { return {(r.Left + r.Right) / 2, (r.Top + r.Bottom) / 2}; }
  Point Automatic() const { return Centre(box.AutoRect()); }
  Point MoreColors() const { return Centre(box.MoreRect()); }
  void Hover(Point p) { grid.MouseMove(p.X, p.Y); }
  void Press(Point p) { grid.Click(p.X, p.Y); }
  void Hover(std::int32_t cell) { Hover(Cell(cell)); }
  void Pick(std::int32_t cell) { Press(Cell(cell)); }
};
using User = std::function<void(Dropdown&)>;

// A ColorCombo placed new on the headless host, 120 pixels wide, its surface at screen
// pixel (300, 400). Its events go to `Log` ("BeforeColorChanged 8200"); the handler of
// the event named `CancelIn` cancels, the one named `DeleteIn` destroys the control.
class ComboHarness : public ::testing::Test, public ColorComboEvents {
 protected:
  static constexpr std::int32_t kWidth = 120;

  ComboHarness() {
    site.WidthTwips = kWidth * TwipsPerPixel;
    host.Windows.ClientOrigins[surface.hWnd()] = {300, 400};
    combo = std::make_unique<ColorCombo>(host.Runtime, surface, site, *this);
    combo->UserControl_InitProperties();
    site.Changed.clear();
  }

  void BeforeColorChanged(OLE_COLOR Color, bool& Cancel) override {
    Raised("BeforeColorChanged", text::Hex(Color), &Cancel);
  }
  void AfterColorChanged(OLE_COLOR Color) override { Raised("AfterColorChanged", text::Hex(Color)); }
  void BeforeIsAutomaticChanged(bool Value, bool& Cancel) override {
    Raised("BeforeIsAutomaticChanged", Value ? "True" : "False", &Cancel);
  }
  void AfterIsAutomaticChanged(bool Value) override { Raised("AfterIsAutomaticChanged", Value ? "True" : "False"); }
  void BeforeDropDown(bool& Cancel) override { Raised("BeforeDropDown", "", &Cancel); }
  void AfterDropUp() override { Raised("AfterDropUp", ""); }
  void DblClick() override { Raised("DblClick", ""); }

  void Raised(const std::string& event, const std::string& argument, bool* cancel = nullptr) {
    Log.push_back(argument.empty() ? event : event + " " + argument);
    if (cancel != nullptr && event == CancelIn) *cancel = true;
    if (event == DeleteIn) combo.reset();
  }

  // Presses the button; `user` acts while the drop-down is shown.
  void Open(const User& user) {
    host.Windows.ScriptModal("frmDropdown", [this, user](TestForm& form) {
      if (!user || !form.IsLoaded()) return;  // closed while it opened
      Dropdown open{host, form, *Shared()->ColorBox1(), form.RecordingSurfaceNamed("ColorBox1")};
      user(open);
    });
    combo->PressButton();
  }
  frmDropdown* Shared() const { return host.Runtime.SharedForm<frmDropdown>(); }
  TestForm* LastDropdown() const { return host.Windows.LastForm("frmDropdown"); }
  // The procedure named by each reported failure.
  Lines Reported() const {
    Lines labels;
    for (const auto& m : host.Messages.Shown) {
      const auto at = m.Prompt.find("Procedure: ") + 11;
      labels.push_back(m.Prompt.substr(at, m.Prompt.find('\r', at) - at));
    }
    return labels;
  }

  TestHost host;
  RecordingSurface surface;
  RecordingSite site;
  Lines Log;
  std::string CancelIn;
  std::string DeleteIn;
  std::unique_ptr<ColorCombo> combo;
};

}  // namespace lumo::testing
