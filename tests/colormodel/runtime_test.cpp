#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "colormodel/CommonGlobals.h"
#include "colormodel/RuntimeError.h"
#include "support/RecordingSite.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::TestHost;

TEST(ErrorMessage, FiveCrLfLinesOrTheCustomTextThenTheDescription) {
  const std::pair<std::string, std::string> cases[] = {
      {CommonGlobals::ErrorMessage(6, "Overflow", "CColorboxCol", "FindClosest"),
       "Error Number: 6\r\nModule: CColorboxCol\r\nProcedure: FindClosest\r\n\r\nOverflow\r\n"},
      {CommonGlobals::ErrorMessage(-2147221504, "x", "m", "p"),
       "Error Number: -2147221504\r\nModule: m\r\nProcedure: p\r\n\r\nx\r\n"},
      {CommonGlobals::ErrorMessage(5, "d", "m", "p", Variant("Could not draw")), "Could not draw\r\nd\r\n"},
      {CommonGlobals::ErrorMessage(5, "d", "m", "p", Variant(std::int32_t{42})), "42\r\nd\r\n"},
      {CommonGlobals::ErrorMessage(5, "d", "m", "p", Variant(true)), "True\r\nd\r\n"}};
  for (const auto& [message, expected] : cases) EXPECT_EQ(message, expected);
}

TEST(ReportError, ShowsAnExclamationBoxTitledErrorAndNeverFails) {
  TestHost host;
  host.Errors().ReportError(9, "Index out of range", "ColorBox", "Refresh");
  ASSERT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_EQ(host.Messages.Shown[0].Title, "Error");
  EXPECT_EQ(host.Messages.Shown[0].Style, 48);
  EXPECT_EQ(host.Messages.Shown[0].Prompt,
            "Error Number: 9\r\nModule: ColorBox\r\nProcedure: Refresh\r\n\r\nIndex out of range\r\n");
  host.Messages.WhileShown = [] { throw std::runtime_error("display gone"); };
  EXPECT_NO_THROW(host.Errors().ReportError(5, "d", "m", "p"));
  EXPECT_EQ(host.Messages.Shown.size(), 2u);
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

TEST(TrapAndNotify, NotifiesWithTheLabelOnBothPaths) {
  TestHost host;
  testing::RecordingSite site;
  host.Errors().TrapAndNotify("ColorBox", "PickStyle [Let]", site, [] {});
  host.Errors().TrapAndNotify("ColorBox", "Color [Let]", site, [] { throw RuntimeError(err::Overflow); });
  EXPECT_EQ(site.Changed, (std::vector<std::string>{"PickStyle [Let]", "Color [Let]"}));
  ASSERT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_NE(host.Messages.Shown[0].Prompt.find("Procedure: Color [Let]"), std::string::npos);
  EXPECT_NO_THROW(CommonGlobals::IgnoreErrors([] { throw 1; }));
}

TEST(PopupResult, ReDimDiscardsOldContentsResetLeavesOneFalseSlotAndMissingSlotsAreIndexErrors) {
  TestHost host;
  EXPECT_THROW(host.Runtime.PopupResultAt(0), RuntimeError);
  host.Runtime.ReDimPopupResult(4);
  host.Runtime.PopupResult()[1] = Variant(std::int32_t{255});
  host.Runtime.ReDimPopupResult(5);
  EXPECT_EQ(host.Runtime.PopupResult(), std::vector<Variant>(5));
  host.Runtime.ResetPopupResult();
  EXPECT_EQ(host.Runtime.PopupResult(), std::vector<Variant>{Variant(false)});
  try {
    host.Runtime.PopupResultAt(1);
    FAIL() << "slot 1 should not exist";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.Number(), err::IndexOutOfRange);
  }
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

}  // namespace
}  // namespace lumo
