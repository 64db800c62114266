#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxEvents.h"
#include "colorcombo/ColorCombo.h"
#include "colorcombo/ColorComboEvents.h"
#include "colorhexagon/ColorHexagon.h"
#include "colorhexagon/ColorHexagonEvents.h"
#include "colorsample/ColorSample.h"
#include "support/MemoryPropertyBag.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"
#include "support/TestLabel.h"

// Loading a form file into each control: a missing key is no damage, a damaged value is
// reported.
namespace lumo {
namespace {

using testing::MemoryPropertyBag;

enum class Kind { Box, Hexagon, Combo, Sample };

// Every control on one headless host, each created only while it loads.
struct Host : ::testing::Test, ColorBoxEvents, ColorHexagonEvents, ColorComboEvents {
  // Creates a control of `kind` and loads and saves it the way a container does, through
  // the events the site delivers.
  void LoadAndSave(Kind kind, const PropertyBag& stored, PropertyBag& saved) {
    std::shared_ptr<void> control;
    if (kind == Kind::Box) control = std::make_shared<ColorBox>(host.Runtime, surface, site, *this);
    if (kind == Kind::Hexagon) control = std::make_shared<ColorHexagon>(host.Runtime, surface, label, site, *this);
    if (kind == Kind::Combo) control = std::make_shared<ColorCombo>(host.Runtime, surface, site, *this);
    if (kind == Kind::Sample) control = std::make_shared<ColorSample>(host.Runtime, surface, site);
    site.StartControl(&stored);
    site.SaveControl(saved);
  }

  testing::TestHost host;
  testing::RecordingSurface surface;
  testing::RecordingSite site;
  testing::TestLabel label;
};

// A value that does not convert is reported with the reading procedure's label, and
// reading stops there: the later key, stored with a value of its own, keeps its default
// (so saving leaves it out). A missing key is no damage.
TEST_F(Host, DamagedValueIsReportedAndStopsTheRead) {
  const struct {
    Kind kind;
    const char *module, *damagedKey, *laterKey;  // laterKey: read after the damaged one
  } cases[] = {{Kind::Box, "ColorBox", "AllowMoreColors", "Color"},
               {Kind::Box, "ColorBox", "Color", "AutoColor"},
               {Kind::Hexagon, "ColorHexagon", "IsAutomatic", "Color"},
               {Kind::Hexagon, "ColorHexagon", "Color", "BackColor"},
               {Kind::Combo, "LumoDropdown", "AllowMoreColors", "Color"},
               {Kind::Combo, "LumoDropdown", "Color", "AutoColor"},
               {Kind::Sample, "ColorSample", "BackColor", "ForeColor"}};
  for (const auto& c : cases) {
    MemoryPropertyBag stored, saved;
    stored.Values[c.damagedKey] = Variant("garbage");
    stored.Values[c.laterKey] = Variant(std::int32_t{0xFF});
    host.Messages.Shown.clear();
    LoadAndSave(c.kind, stored, saved);
    ASSERT_EQ(host.Messages.Shown.size(), 1u) << c.module << " " << c.damagedKey;
    const std::string& prompt = host.Messages.Shown.front().Prompt;
    const std::string where = "Module: " + std::string(c.module) + "\r\nProcedure: UserControl_ReadProperties\r\n";
    EXPECT_NE(prompt.find(where), std::string::npos) << prompt;
    EXPECT_EQ(saved.Values.count(c.laterKey), 0u) << c.module << " " << c.laterKey;
  }
}

TEST_F(Host, MissingKeysLoadTheirDefaultsWithoutAReport) {
  MemoryPropertyBag stored, saved;
  for (const Kind kind : {Kind::Box, Kind::Hexagon, Kind::Combo, Kind::Sample}) LoadAndSave(kind, stored, saved);
  EXPECT_TRUE(host.Messages.Shown.empty());
  EXPECT_TRUE(saved.Values.empty());
}

}  // namespace
}  // namespace lumo
