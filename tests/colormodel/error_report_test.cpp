#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "colormodel/CommonGlobals.h"
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

struct TrapCase {
  const char* name;
  std::function<void()> body;
  std::optional<std::int32_t> number;  // empty: the body succeeds and nothing is shown
};

class Trap : public ::testing::TestWithParam<TrapCase> {};

TEST_P(Trap, ReportsWhatTheBodyRaisesKeepsEarlierResultsAndReturnsNormally) {
  TestHost host;
  int result = 0;
  host.Errors().Trap("Module1", "Proc1", [&] {
    result = 7;
    GetParam().body();
  });
  EXPECT_EQ(result, 7);
  if (!GetParam().number) {
    EXPECT_TRUE(host.Messages.Shown.empty());
    return;
  }
  ASSERT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_EQ(host.Messages.Shown[0].Prompt.rfind(
                "Error Number: " + std::to_string(*GetParam().number) + "\r\nModule: Module1\r\nProcedure: Proc1\r\n", 0),
            0u)
      << host.Messages.Shown[0].Prompt;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Trap,
    ::testing::Values(TrapCase{"Success", [] {}, std::nullopt},
                      TrapCase{"RuntimeError", [] { throw RuntimeError(err::Overflow); }, 6},
                      TrapCase{"OutOfRange", [] { throw std::out_of_range("x"); }, 9},
                      TrapCase{"BadAlloc", [] { throw std::bad_alloc(); }, 7},
                      TrapCase{"InvalidArgument", [] { throw std::invalid_argument("x"); }, 5},
                      TrapCase{"OtherException", [] { throw std::runtime_error("x"); }, 51},
                      TrapCase{"NotAnException", [] { throw 42; }, 51}),
    [](const auto& info) { return std::string(info.param.name); });

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

}  // namespace
}  // namespace lumo
