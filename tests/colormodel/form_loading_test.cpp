#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <functional>
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

// Loading a form file into each control: damage is reported, and numbers read the same
// under every C locale.
namespace lumo {
namespace {

using testing::MemoryPropertyBag;

// Every control on one headless host, each created only for the test that loads it.
struct Host : ::testing::Test, ColorBoxEvents, ColorHexagonEvents, ColorComboEvents {
  testing::TestHost host;
  testing::RecordingSurface surface;
  testing::RecordingSite site;
  testing::TestLabel label;
};

// Reads `stored` into a new control of one kind and writes it back into `saved`.
using LoadAndSave = std::function<void(Host&, const PropertyBag& stored, PropertyBag& saved)>;

struct DamagedCase {
  const char* name;
  const char* module;
  const char* damagedKey;
  const char* laterKey;  // read after the damaged one
  LoadAndSave load;
};

// Creates the control on the host's site and loads and saves it the way a container does,
// through the events the site delivers.
template <class Create>
LoadAndSave Through(Create create) {
  return [create](Host& h, const PropertyBag& stored, PropertyBag& saved) {
    const auto control = create(h);
    h.site.StartControl(&stored);
    h.site.SaveControl(saved);
  };
}
LoadAndSave LoadBox() {
  return Through([](Host& h) { return std::make_unique<ColorBox>(h.host.Runtime, h.surface, h.site, h); });
}
LoadAndSave LoadHexagon() {
  return Through(
      [](Host& h) { return std::make_unique<ColorHexagon>(h.host.Runtime, h.surface, h.label, h.site, h); });
}
LoadAndSave LoadCombo() {
  return Through([](Host& h) { return std::make_unique<ColorCombo>(h.host.Runtime, h.surface, h.site, h); });
}
LoadAndSave LoadSample() {
  return Through([](Host& h) { return std::make_unique<ColorSample>(h.host.Runtime, h.surface, h.site); });
}

class DamagedForm : public Host, public ::testing::WithParamInterface<DamagedCase> {};

// A value that does not convert is reported with the reading procedure's label, and
// reading stops there: the later key, stored with a value of its own, keeps its default
// (so saving leaves it out). A missing key is no damage.
TEST_P(DamagedForm, IsReportedAndStopsTheRead) {
  MemoryPropertyBag stored, saved;
  stored.Values[GetParam().damagedKey] = Variant("garbage");
  stored.Values[GetParam().laterKey] = Variant(std::int32_t{0xFF});
  GetParam().load(*this, stored, saved);
  ASSERT_EQ(host.Messages.Shown.size(), 1u);
  const std::string& prompt = host.Messages.Shown.front().Prompt;
  EXPECT_NE(prompt.find("Module: " + std::string(GetParam().module) + "\r\n"), std::string::npos) << prompt;
  EXPECT_NE(prompt.find("Procedure: UserControl_ReadProperties\r\n"), std::string::npos) << prompt;
  EXPECT_EQ(saved.Values.count(GetParam().laterKey), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, DamagedForm,
    ::testing::Values(DamagedCase{"BoxBoolean", "ColorBox", "AllowMoreColors", "Color", LoadBox()},
                      DamagedCase{"BoxColor", "ColorBox", "Color", "AutoColor", LoadBox()},
                      DamagedCase{"HexagonBoolean", "ColorHexagon", "IsAutomatic", "Color", LoadHexagon()},
                      DamagedCase{"HexagonColor", "ColorHexagon", "Color", "BackColor", LoadHexagon()},
                      DamagedCase{"ComboBoolean", "LumoDropdown", "AllowMoreColors", "Color", LoadCombo()},
                      DamagedCase{"ComboColor", "LumoDropdown", "Color", "AutoColor", LoadCombo()},
                      DamagedCase{"SampleColor", "ColorSample", "BackColor", "ForeColor", LoadSample()}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Host, MissingKeysLoadTheirDefaultsWithoutAReport) {
  MemoryPropertyBag stored, saved;
  for (const auto& load : {LoadBox(), LoadHexagon(), LoadCombo(), LoadSample()}) load(*this, stored, saved);
  EXPECT_TRUE(host.Messages.Shown.empty());
  EXPECT_TRUE(saved.Values.empty());
}

// A C locale whose decimal mark is a comma, as QApplication sets it from LANG: the
// build generates de_DE.UTF-8 into LUMO_TEST_LOCALES, so the test never depends on the
// machine's own locales.
class CommaDecimalLocale : public Host {
 protected:
  void SetUp() override {
    saved_ = std::setlocale(LC_ALL, nullptr);
    ::setenv("LOCPATH", LUMO_TEST_LOCALES, 1);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "no de_DE.UTF-8 in " LUMO_TEST_LOCALES;
    ASSERT_EQ(std::strtod("1,5", nullptr), 1.5);  // the locale really reads a comma
  }
  void TearDown() override { std::setlocale(LC_ALL, saved_.c_str()); }

 private:
  std::string saved_;
};

TEST_F(CommaDecimalLocale, DecimalFractionsInAFormRoundTheSameAsEverywhere) {
  MemoryPropertyBag stored;
  stored.Values = {{"Color", Variant("1.7")}, {"PickStyle", Variant("2.6")}};
  ColorBox box(host.Runtime, surface, site, *this);
  box.UserControl_ReadProperties(stored);
  EXPECT_EQ(std::pair(box.Color(), box.PickStyle()), std::pair(2, 3));
  EXPECT_TRUE(host.Messages.Shown.empty());
}

}  // namespace
}  // namespace lumo
