#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "ColorBoxHarness.h"
#include "colormodel/HostTimer.h"

namespace lumo {
namespace {

using testing::ColorBoxHarness;
using testing::Lines;
using testing::MemoryPropertyBag;

const Lines kKeys{"AllowAutomatic", "AllowMoreColors", "Color", "IsAutomatic",
                  "AutomaticText",  "MoreColorsText",  "AutoColor", "PickStyle"};

class ColorBoxProperties : public ColorBoxHarness {
 protected:
  // Every property, read back in the order of the bag keys.
  Lines Values() const {
    return {std::to_string(box->AllowAutomatic()), std::to_string(box->AllowMoreColors()),
            text::Hex(box->Color()),               std::to_string(box->IsAutomatic()),
            box->AutomaticText(),                  box->MoreColorsText(),
            text::Hex(box->AutoColor()),           std::to_string(box->PickStyle())};
  }
  const Lines defaults_{"1", "1", "663300", "1", "Automatic", "More Colors...", "80000010", "0"};
};

TEST_F(ColorBoxProperties, NewControlStartsWithTheInitialValuesPaintedAndSized) {
  EXPECT_EQ(Values(), defaults_);
  EXPECT_EQ(box->ColorName(), "");
  EXPECT_EQ(box->FocusZone(), focuszone::Automatic);
  EXPECT_EQ(site.WidthTwips, 146 * 15);
  EXPECT_EQ(Resizes, 1);
  EXPECT_EQ(box->Timer1().Interval(), 500);
  EXPECT_FALSE(box->Timer1().Enabled());
  box->Refresh();  // Resize comes last, under the event guard, after the drawing is shown
  EXPECT_EQ(Guarded, std::vector<bool>{true});
  EXPECT_EQ(surface.Calls.back().Op, "Refresh");
  surface.ClearCalls();
  box->SetIsAutomatic(false);  // only stores: no repaint, no notification
  EXPECT_FALSE(box->IsAutomatic());
  EXPECT_TRUE(surface.Calls.empty());
  EXPECT_TRUE(site.Changed.empty());
}

struct Setter {
  const char* label;
  std::function<void(ColorBox&)> set;
};

class ColorBoxSetters : public ColorBoxProperties, public ::testing::WithParamInterface<Setter> {};

TEST_P(ColorBoxSetters, SetterRepaintsAndNotifiesWithItsOwnLabel) {
  GetParam().set(*box);
  EXPECT_EQ(site.Changed, (Lines{GetParam().label}));
  EXPECT_EQ(Resizes, 2);
}

TEST_P(ColorBoxSetters, SetterNotifiesEvenWhenItsRepaintReportsAnError) {
  surface.LineHeight = 3e9;  // the text height no longer fits 32 bits
  GetParam().set(*box);
  EXPECT_EQ(site.Changed, (Lines{GetParam().label}));
  EXPECT_EQ(host.Messages.Prompts().at(0), "Error Number: 6\r\nModule: ColorBox\r\nProcedure: GetTextHeight\r\n\r\nOverflow\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    EverySetter, ColorBoxSetters,
    ::testing::Values(Setter{"PickStyle [Let]", [](ColorBox& b) { b.SetPickStyle(cpsPalette40); }},
                      Setter{"AutoColor [Let]", [](ColorBox& b) { b.SetAutoColor(0xFF); }},
                      Setter{"AutomaticText [Let]", [](ColorBox& b) { b.SetAutomaticText("Auto"); }},
                      Setter{"MoreColorsText [Let]", [](ColorBox& b) { b.SetMoreColorsText("More"); }},
                      Setter{"Color [Let]", [](ColorBox& b) { b.SetColor(0xFF); }},
                      Setter{"AllowAutomatic [Let]", [](ColorBox& b) { b.SetAllowAutomatic(false); }},
                      Setter{"AllowMoreColors [Let]", [](ColorBox& b) { b.SetAllowMoreColors(false); }}));

TEST_F(ColorBoxProperties, EightKeysRoundTripInOrderAndDefaultsAreLeftOut) {
  MemoryPropertyBag fresh;
  box->UserControl_WriteProperties(fresh);
  EXPECT_EQ(fresh.WriteOrder, kKeys);
  EXPECT_TRUE(fresh.Values.empty());

  box->SetAllowAutomatic(false);
  box->SetAllowMoreColors(false);
  box->SetColor(0xFF);
  box->SetIsAutomatic(false);
  box->SetAutomaticText("Auto");
  box->SetMoreColorsText("More");
  box->SetAutoColor(sys::ButtonFace);
  box->SetPickStyle(cpsPalette40);
  const Lines changed = Values();
  MemoryPropertyBag bag;
  box->UserControl_WriteProperties(bag);
  EXPECT_EQ(bag.Values.size(), 8u);
  box->UserControl_InitProperties();
  EXPECT_EQ(Values(), defaults_);
  MoveTo(CellCentre(5));
  box->UserControl_ReadProperties(bag);
  EXPECT_EQ(bag.ReadOrder, kKeys);
  EXPECT_EQ(Values(), changed);
  EXPECT_EQ(box->Cells()->Count(), 40);
  EXPECT_EQ(box->FocusZone(), focuszone::Automatic);
}

// Creation has already loaded the standard palette, so an unknown style read from a
// form keeps those 16 cells in rows of 8 instead of dividing by a column count of 0.
TEST_F(ColorBoxProperties, AnUnknownStyleReadFromAFormKeepsThePalette) {
  MemoryPropertyBag bag;
  bag.Values["PickStyle"] = Variant(std::int32_t{99});
  box->UserControl_ReadProperties(bag);
  EXPECT_EQ(box->PickStyle(), 99);
  EXPECT_EQ(box->Cells()->Count(), 16);
  EXPECT_EQ(box->Columns(), 8);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(ColorBoxProperties, ExtentTooLargeForTwipsIsReportedByRefresh) {
  surface.LineHeight = 2e8;
  box->Refresh();
  EXPECT_EQ(host.Messages.Prompts(), (Lines{"Error Number: 6\r\nModule: ColorBox\r\nProcedure: Refresh\r\n\r\nOverflow\r\n"}));
}

TEST_F(ColorBoxProperties, ResizeByTheHostIsAnsweredWithTheSurfaceExtent) {
  site.Size(15, 15);
  box->UserControl_Resize();
  EXPECT_EQ(site.WidthTwips, surface.ScaleWidth() * 15);
  EXPECT_EQ(site.HeightTwips, surface.ScaleHeight() * 15);
}

TEST_F(ColorBoxProperties, TerminateReleasesTheCellsAndDestructionLetsGoOfTheSurface) {
  MoveTo(CellCentre(2));
  const auto cell = box->Cells()->Item(2);
  box->UserControl_Terminate();
  EXPECT_EQ(box->Cells(), nullptr);
  EXPECT_EQ(box->HotCell(), nullptr);
  EXPECT_EQ(cell->Parent(), nullptr);
  box.reset();
  EXPECT_EQ(surface.Listener(), nullptr);
  EXPECT_TRUE(host.Timers.Live().empty());
  EXPECT_TRUE(host.Messages.Shown.empty());
}

}  // namespace
}  // namespace lumo
