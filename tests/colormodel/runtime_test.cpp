#include <gtest/gtest.h>

#include <memory>

#include "colormodel/RuntimeError.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::TestHost;

TEST(PopupResult, ReDimDiscardsOldContents) {
  TestHost host;
  host.Runtime.ReDimPopupResult(4);
  host.Runtime.PopupResult()[1] = Variant(std::int32_t{255});
  host.Runtime.ReDimPopupResult(5);
  ASSERT_EQ(host.Runtime.PopupResult().size(), 5u);
  EXPECT_TRUE(host.Runtime.PopupResult()[1].IsEmpty());
}

TEST(PopupResult, ResetLeavesOneFalseSlotAndMissingSlotsAreIndexErrors) {
  TestHost host;
  EXPECT_THROW(host.Runtime.PopupResultAt(0), RuntimeError);
  host.Runtime.ResetPopupResult();
  EXPECT_EQ(host.Runtime.PopupResultAt(0), Variant(false));
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
  Probe* first = host.Runtime.SharedForm<Probe>();
  ASSERT_NE(first, nullptr);
  host.Runtime.SetSharedForm<Probe>(nullptr);  // as a form's own unload handler does
  EXPECT_EQ(host.Runtime.SharedForm<Probe>(), nullptr);
  EXPECT_EQ(destroyed, 0);  // still alive: its handler may be running
  host.Runtime.SetSharedForm(std::make_unique<Probe>(destroyed));
  EXPECT_EQ(destroyed, 1);
}

}  // namespace
}  // namespace lumo
