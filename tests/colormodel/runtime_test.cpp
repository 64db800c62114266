#include <gtest/gtest.h>

#include <memory>

#include "colormodel/RuntimeError.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::TestHost;

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
