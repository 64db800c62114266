#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxEvents.h"
#include "colorbox/ColorBoxKeyboard.h"
#include "colorbox/ColorBoxPainter.h"
#include "colormodel/Enums.h"
#include "colormodel/TextRules.h"
#include "support/MemoryPropertyBag.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"

namespace lumo::testing {

using Lines = std::vector<std::string>;

// The text height the recording surface gives the control: "A" plus 4 pixels.
inline constexpr std::int32_t kTextHeight = 17;

// A ColorBox on the headless host. Its events go to `Log` as short texts
// ("Click 8200 Green"); `Guarded` keeps the event flag as each handler saw it.
class ColorBoxHarness : public ::testing::Test, public ColorBoxEvents {
 protected:
  // Made here rather than in a member initialiser, so that the Resize raised while
  // the control is being created finds `box` still empty.
  ColorBoxHarness() { Recreate(); }

  // A fresh control on the same host, surface and site, so that table rows start alike.
  void Recreate() {
    box.reset();
    box = std::make_unique<ColorBox>(host.Runtime, surface, site, *this);
  }

  void OverColor(OLE_COLOR lColor, bool bOverAutomatic) override {
    Raised("OverColor " + text::Hex(lColor) + (bOverAutomatic ? " auto" : ""));
  }
  void Click(OLE_COLOR& lColor, const std::string& sColorName, bool& bIsAutomatic) override {
    Raised("Click " + text::Hex(lColor) + " " + sColorName + (bIsAutomatic ? " auto" : ""));
    if (WhileClick) WhileClick(lColor, bIsAutomatic);
  }
  void MoreColorClick() override { Raised("MoreColorClick"); }
  void UserCancel() override { Raised("UserCancel"); }
  void Resize() override {
    ++Resizes;
    if (box) Guarded.push_back(box->InEvent());
  }
  void Raised(std::string event) {
    Log.push_back(std::move(event));
    Guarded.push_back(box->InEvent());
  }

  Point CellCentre(std::int32_t index) const {
    const auto cell = box->Cells()->Item(index);
    return {cell->BoundLeft() + 6, cell->BoundTop() + 6};
  }
  static Point Centre(const Rect& r) { return {(r.Left + r.Right) / 2, (r.Top + r.Bottom) / 2}; }
  Rect Bounds(std::int32_t index) const {
    const auto c = box->Cells()->Item(index);
    return {c->BoundLeft(), c->BoundTop(), c->BoundRight(), c->BoundBottom()};
  }
  Rect Frame(std::int32_t index) const { return ColorBoxPainter::FrameArea(Bounds(index).Left, Bounds(index).Top); }
  void MoveTo(Point p) { surface.MouseMove(p.X, p.Y); }
  void ClickAt(Point p) { surface.Click(p.X, p.Y); }
  // Puts the keyboard focus in a zone (on cell `index` for the grid) the way the pointer
  // does, coming from outside so that the move always lands on something new.
  void Focus(std::int32_t zone, std::int32_t index = 0) {
    MoveTo({-1, -1});
    if (zone == focuszone::Automatic) MoveTo(Centre(box->AutoRect()));
    if (zone == focuszone::Grid) MoveTo(CellCentre(index));
    if (zone == focuszone::MoreColors) MoveTo(Centre(box->MoreRect()));
    ASSERT_EQ(box->FocusZone(), zone);
    Log.clear();
    surface.ClearCalls();
  }
  // The recorded calls of `op` (every op when empty) drawn at exactly this rectangle.
  std::vector<SurfaceCall> CallsAt(const std::string& op, const Rect& r) const {
    std::vector<SurfaceCall> found;
    for (const auto& call : surface.Calls) {
      if (call.Args.size() >= 4 && Rect{call.Args[0], call.Args[1], call.Args[2], call.Args[3]} == r &&
          (op.empty() || call.Op == op)) {
        found.push_back(call);
      }
    }
    return found;
  }

  TestHost host;
  RecordingSurface surface;
  RecordingSite site;
  Lines Log;
  std::vector<bool> Guarded;
  std::function<void(OLE_COLOR&, bool&)> WhileClick;
  int Resizes = 0;
  std::unique_ptr<ColorBox> box;
};

}  // namespace lumo::testing
