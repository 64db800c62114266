#include <gtest/gtest.h>

#include "support/MemoryPropertyBag.h"

namespace lumo {
namespace {

using testing::MemoryPropertyBag;

struct StoredCase {
  const char* name;
  Variant stored;  // empty: the key is missing
  // What each typed read answers, given the defaults 7, "dflt" and a font "Fallback";
  // for a boolean 1 true, 0 false, -1 the default (tried both ways).
  int boolean;
  std::int32_t number;
  const char* text;
  bool fontIsDefault;
};

class TypedRead : public ::testing::TestWithParam<StoredCase> {};

// A value that does not convert gives the default, so a damaged form file still loads.
TEST_P(TypedRead, ConvertsCompatibleKindsAndFallsBackToTheDefault) {
  MemoryPropertyBag bag;
  if (!GetParam().stored.IsEmpty()) bag.Values["Key"] = GetParam().stored;
  StdFont fallback;
  fallback.Name = "Fallback";
  for (const bool byDefault : {false, true}) {
    EXPECT_EQ(bag.ReadBoolean("Key", byDefault), GetParam().boolean < 0 ? byDefault : GetParam().boolean == 1);
  }
  EXPECT_EQ(bag.ReadLong("Key", 7), GetParam().number);
  EXPECT_EQ(bag.ReadText("Key", "dflt"), GetParam().text);
  EXPECT_EQ(bag.ReadFont("Key", fallback) == fallback, GetParam().fontIsDefault);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, TypedRead,
    ::testing::Values(StoredCase{"Missing", Variant(), -1, 7, "dflt", true},
                      StoredCase{"TextTrue", Variant("true"), 1, 7, "true", true},
                      StoredCase{"TextFalse", Variant("FALSE"), 0, 7, "FALSE", true},
                      StoredCase{"TextGarbage", Variant("not a boolean"), -1, 7, "not a boolean", true},
                      StoredCase{"HexText", Variant("&hFF"), 1, 255, "&hFF", true},
                      StoredCase{"BadHexText", Variant("&hZZ"), -1, 7, "&hZZ", true},
                      StoredCase{"TooBig", Variant("99999999999"), -1, 7, "99999999999", true},
                      StoredCase{"Zero", Variant(std::int32_t{0}), 0, 0, "0", true},
                      StoredCase{"MinusOne", Variant(std::int32_t{-1}), 1, -1, "-1", true},
                      StoredCase{"False", Variant(false), 0, 0, "False", true},
                      StoredCase{"Font", Variant(StdFont{}), -1, 7, "MS Sans Serif", false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(PropertyBag, ValuesEqualToTheirDefaultAreNotStored) {
  MemoryPropertyBag bag;
  bag.WriteProperty("Color", Variant(std::int32_t{255}), Variant(std::int32_t{0x663300}));
  bag.WriteProperty("Color", Variant(std::int32_t{0x663300}), Variant(std::int32_t{0x663300}));
  EXPECT_TRUE(bag.Values.empty());
}

}  // namespace
}  // namespace lumo
