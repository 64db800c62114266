#include <gtest/gtest.h>

#include "support/MemoryPropertyBag.h"

namespace lumo {
namespace {

using testing::MemoryPropertyBag;

TEST(PropertyBag, ValuesEqualToTheirDefaultAreNotStored) {
  MemoryPropertyBag bag;
  bag.WriteProperty("PickStyle", Variant(std::int32_t{0}), Variant(std::int32_t{0}));
  bag.WriteProperty("Color", Variant(std::int32_t{255}), Variant(std::int32_t{0x663300}));
  EXPECT_EQ(bag.Values.count("PickStyle"), 0u);
  EXPECT_EQ(bag.ReadLong("Color", 0x663300), 255);
  EXPECT_EQ(bag.ReadLong("PickStyle", 0), 0);
}

TEST(PropertyBag, TypedReadsGiveTheDefaultForMissingOrGarbledValues) {
  MemoryPropertyBag bag;
  bag.Values["Flag"] = Variant("not a boolean");
  bag.Values["Number"] = Variant("&hZZ");
  bag.Values["Big"] = Variant("99999999999");
  bag.Values["FontAsNumber"] = Variant(std::int32_t{3});
  StdFont fallback;
  fallback.Name = "Fallback";
  EXPECT_TRUE(bag.ReadBoolean("Flag", true));
  EXPECT_FALSE(bag.ReadBoolean("Missing", false));
  EXPECT_EQ(bag.ReadLong("Number", 7), 7);
  EXPECT_EQ(bag.ReadLong("Big", 7), 7);
  EXPECT_EQ(bag.ReadFont("FontAsNumber", fallback).Name, "Fallback");
  EXPECT_EQ(bag.ReadText("Missing", "dflt"), "dflt");
}

TEST(PropertyBag, TypedReadsConvertCompatibleKinds) {
  MemoryPropertyBag bag;
  bag.Values["TextTrue"] = Variant("true");
  bag.Values["MinusOne"] = Variant(std::int32_t{-1});
  bag.Values["HexText"] = Variant("&hFF");
  bag.Values["BoolAsNumber"] = Variant(true);
  bag.Values["NumberAsText"] = Variant(std::int32_t{12});
  EXPECT_TRUE(bag.ReadBoolean("TextTrue", false));
  EXPECT_TRUE(bag.ReadBoolean("MinusOne", false));
  EXPECT_EQ(bag.ReadLong("HexText", 0), 255);
  EXPECT_EQ(bag.ReadLong("BoolAsNumber", 0), -1);
  EXPECT_EQ(bag.ReadText("NumberAsText", ""), "12");
}

}  // namespace
}  // namespace lumo
