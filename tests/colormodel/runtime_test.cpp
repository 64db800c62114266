#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxEvents.h"
#include "colorcombo/ColorCombo.h"
#include "colorcombo/ColorComboEvents.h"
#include "colorhexagon/ColorHexagon.h"
#include "colorhexagon/ColorHexagonEvents.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/RuntimeError.h"
#include "colorsample/ColorSample.h"
#include "support/MemoryPropertyBag.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"
#include "support/TestLabel.h"

namespace lumo {
namespace {

using testing::MemoryPropertyBag;
using testing::TestHost;

// Five CrLf lines, or the custom text before the description, in an exclamation box
// titled "Error"; a display that fails while it shows does not reach the caller.
TEST(ReportError, ShowsTheFiveLineTextOrTheCustomTextAndNeverFails) {
  TestHost host;
  host.Errors().ReportError(-2147221504, "Index out of range", "ColorBox", "Refresh");
  host.Errors().ReportError(5, "d", "m", "p", Variant(std::int32_t{42}));
  host.Messages.WhileShown = [] { throw std::runtime_error("display gone"); };
  EXPECT_NO_THROW(host.Errors().ReportError(5, "d", "m", "p"));
  EXPECT_EQ(host.Messages.Prompts(),
            (std::vector<std::string>{
                "Error Number: -2147221504\r\nModule: ColorBox\r\nProcedure: Refresh\r\n\r\nIndex out of range\r\n",
                "42\r\nd\r\n", "Error Number: 5\r\nModule: m\r\nProcedure: p\r\n\r\nd\r\n"}));
  EXPECT_EQ(std::pair(host.Messages.Shown[0].Title, host.Messages.Shown[0].Style),
            std::pair(std::string("Error"), 48));
}

// The body's earlier effects stay, what it raises is reported under its label with the
// number of its kind, and Trap returns normally.
TEST(Trap, ReportsWhatTheBodyRaisesUnderItsLabel) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] {}, ""},
      {[] { throw RuntimeError(err::Overflow); }, "6"},
      {[] { throw std::out_of_range("x"); }, "9"},
      {[] { throw std::bad_alloc(); }, "7"},
      {[] { throw std::invalid_argument("x"); }, "5"},
      {[] { throw std::runtime_error("x"); }, "51"},
      {[] { throw 42; }, "51"}};
  for (const auto& [body, number] : cases) {
    TestHost host;
    int result = 0;
    host.Errors().Trap("Module1", "Proc1", [&, &body = body] {
      result = 7;
      body();
    });
    EXPECT_EQ(result, 7);
    std::string shown;
    for (const auto& m : host.Messages.Shown) shown += m.Prompt;
    const std::string head =
        *number ? "Error Number: " + std::string(number) + "\r\nModule: Module1\r\nProcedure: Proc1\r\n" : "";
    EXPECT_EQ(shown.substr(0, head.size()), head) << shown;
    EXPECT_EQ(host.Messages.Shown.size(), *number ? 1u : 0u);
  }
}

// No control reaches this overload (the controls pass their liveness token), nor throws
// anything but a RuntimeError into IgnoreErrors.
TEST(TrapAndNotify, NotifiesUnderTheLabelWhenTheBodyFails) {
  TestHost host;
  testing::RecordingSite site;
  host.Errors().TrapAndNotify("ColorBox", "Color [Let]", site, [] { throw RuntimeError(err::Overflow); });
  EXPECT_EQ(site.Changed, std::vector<std::string>{"Color [Let]"});
  EXPECT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_NO_THROW(CommonGlobals::IgnoreErrors([] { throw 1; }));
}

struct Probe {
  explicit Probe(int& destroyed) : destroyed_(destroyed) {}
  ~Probe() { ++destroyed_; }
  int& destroyed_;
};

TEST(SharedForms, OneInstancePerClassDroppedSafelyFromInsideItself) {
  TestHost host;
  int destroyed = 0;
  EXPECT_EQ(host.Runtime.SharedForm<Probe>(), nullptr);
  host.Runtime.SetSharedForm(std::make_unique<Probe>(destroyed));
  ASSERT_NE(host.Runtime.SharedForm<Probe>(), nullptr);
  host.Runtime.SetSharedForm<Probe>(nullptr);  // as a form's own unload handler does
  EXPECT_EQ(host.Runtime.SharedForm<Probe>(), nullptr);
  EXPECT_EQ(destroyed, 0);  // still alive: its handler may be running
  host.Runtime.SetSharedForm(std::make_unique<Probe>(destroyed));
  EXPECT_EQ(destroyed, 1);
}

// Loading a form file into each control: a missing key is no damage, a damaged value is
// reported.
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
               {Kind::Hexagon, "ColorHexagon", "Color", "BackColor"},
               {Kind::Combo, "LumoDropdown", "AllowMoreColors", "Color"},
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
