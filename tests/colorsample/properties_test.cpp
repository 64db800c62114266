#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "ColorSampleHarness.h"
#include "colormodel/Enums.h"
#include "colormodel/TextRules.h"
#include "support/MemoryPropertyBag.h"

namespace lumo {
namespace {

using testing::ColorSampleHarness;
using testing::MemoryPropertyBag;
using testing::RecordingSite;
using testing::RecordingSurface;
using Lines = std::vector<std::string>;

const Lines kKeys{"BackColor", "ForeColor", "Text", "BorderStyle", "Font"};

// Every property, in the order of the bag keys.
Lines Values(const ColorSample& s) {
  const std::optional<StdFont> font = s.Font();
  return {text::Hex(s.BackColor()), text::Hex(s.ForeColor()), s.Text(), std::to_string(s.BorderStyle()),
          font ? font->Name + " " + std::to_string(font->Size) + (font->Bold ? " bold" : "") : "(none)"};
}

struct Setter {
  const char* label;
  std::function<void(ColorSample&)> set;
  // What the stored value shows in the new drawing.
  std::function<bool(const RecordingSurface&)> drawn;
};
void PrintTo(const Setter& s, std::ostream* os) { *os << s.label; }

class ColorSampleSetters : public ColorSampleHarness, public ::testing::WithParamInterface<Setter> {};

TEST_P(ColorSampleSetters, SetterStoresNotifiesWithItsOwnLabelAndRedraws) {
  surface.ClearCalls();
  GetParam().set(*sample);
  EXPECT_EQ(site.Changed, Lines{GetParam().label});
  EXPECT_EQ(surface.CountOf("Refresh"), 1);
  EXPECT_TRUE(GetParam().drawn(surface));
  EXPECT_TRUE(Messages().empty());
}

const StdFont kCourier{"Courier New", 12.0, true};

INSTANTIATE_TEST_SUITE_P(
    EverySetter, ColorSampleSetters,
    ::testing::Values(
        Setter{"BackColor [Let]", [](ColorSample& s) { s.SetBackColor(0x00FFFF); },
               [](const RecordingSurface& r) { return r.CallsOf("Print").back().BackColor == 0x00FFFF; }},
        Setter{"BorderStyle [Let]", [](ColorSample& s) { s.SetBorderStyle(bcNone); },
               [](const RecordingSurface& r) { return r.CountOf("Rectangle") == 0; }},
        Setter{"Font [Let]", [](ColorSample& s) { s.SetFont(kCourier); },
               [](const RecordingSurface& r) { return r.Font() == kCourier; }},
        Setter{"Text [Let]", [](ColorSample& s) { s.SetText("Abc"); },
               [](const RecordingSurface& r) { return r.CallsOf("Print").back().Text == "Abc"; }},
        Setter{"ForeColor [Let]", [](ColorSample& s) { s.SetForeColor(0x800000); },
               [](const RecordingSurface& r) { return r.CallsOf("Print").back().ForeColor == 0x800000; }}),
    [](const auto& info) { return std::string(info.param.label).substr(0, std::string(info.param.label).find(' ')); });

TEST_F(ColorSampleHarness, NoFontGivesTheAmbientFontAndAnUnplacedSampleKeepsTheSurfaceFont) {
  RecordingSurface unplacedSurface;
  RecordingSite unplacedSite;
  const ColorSample unplaced(host.Runtime, unplacedSurface, unplacedSite);
  EXPECT_EQ(unplaced.Font(), std::nullopt);
  EXPECT_EQ(unplacedSurface.Font(), StdFont{});

  EXPECT_EQ(sample->Font(), Ambient);
  sample->SetFont(kCourier);
  site.Font = {"Verdana", 11.0};
  sample->SetFont(std::nullopt);
  EXPECT_EQ(sample->Font(), site.Font);
  EXPECT_EQ(surface.Font(), site.Font);
}

TEST_F(ColorSampleHarness, PropertiesSurviveSaveAndLoadWithAnyBorderStyleKept) {
  MemoryPropertyBag untouched;
  sample->UserControl_WriteProperties(untouched);
  EXPECT_TRUE(untouched.Values.empty());  // every value is its default, the font the ambient one
  EXPECT_EQ(untouched.WriteOrder, kKeys);

  sample->SetBackColor(0x00FFFF);
  sample->SetForeColor(0x800000);
  sample->SetText("Abc");
  sample->SetBorderStyle(2);
  sample->SetFont(kCourier);
  MemoryPropertyBag bag;
  sample->UserControl_WriteProperties(bag);
  EXPECT_EQ(bag.Values.at("BorderStyle"), Variant(2));

  RecordingSurface otherSurface;
  RecordingSite otherSite;
  ColorSample loaded(host.Runtime, otherSurface, otherSite);
  loaded.UserControl_ReadProperties(bag);
  EXPECT_EQ(Values(loaded), Values(*sample));
  EXPECT_EQ(bag.ReadOrder, kKeys);
  EXPECT_EQ(otherSurface.CountOf("Rectangle"), 1);  // drawn once, by Initialize, before loading
}

TEST_F(ColorSampleHarness, MissingOrGarbledKeysLoadTheirDefaults) {
  sample->SetText("Abc");
  sample->SetBorderStyle(0);
  MemoryPropertyBag bag;
  bag.Values["BorderStyle"] = Variant("thick");
  bag.Values["Font"] = Variant(7);
  sample->UserControl_ReadProperties(bag);
  EXPECT_EQ(Values(*sample), (Lines{"FFFFFF", "0", "Sample Text", "1", "Tahoma 9.000000"}));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ColorSampleHarness, AboutBoxOpensTheLibraryAboutBoxOverTheControlsWindow) {
  sample->AboutBox();
  EXPECT_EQ(host.Windows.AboutBoxOwners, std::vector<WindowHandle>{0x5A});
  EXPECT_TRUE(site.Changed.empty());
}

TEST_F(ColorSampleHarness, TheSiteReachesTheSampleWhileItLives) {
  EXPECT_EQ(site.Control(), &*sample);
  sample.reset();
  EXPECT_EQ(site.Control(), nullptr);
}

}  // namespace
}  // namespace lumo
