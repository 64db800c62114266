#include <gtest/gtest.h>

#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"
#include "support/MemoryPropertyBag.h"

namespace lumo {
namespace {

using testing::MemoryPropertyBag;

// What a typed read answers: its value as text, "default" or "error <number>".
template <class Read>
std::string Outcome(Read read) {
  try {
    return Variant(read()).ToText();
  } catch (const RuntimeError& e) {
    return "error " + text::Decimal(e.Number());
  }
}

struct StoredCase {
  const char* name;
  Variant stored;  // empty: the key is missing
  // What each typed read answers, given the defaults 7, "dflt" and a font "Fallback";
  // a boolean "default" is tried both ways, a font answers "Fallback" or "stored".
  const char* boolean;
  const char* number;
  const char* text;
  const char* font;
};

class TypedRead : public ::testing::TestWithParam<StoredCase> {};

// A missing key gives the default; a value that does not convert raises the conversion's
// error for the reading control to report.
TEST_P(TypedRead, ConvertsCompatibleKindsAndFailsOnTheRest) {
  MemoryPropertyBag bag;
  if (!GetParam().stored.IsEmpty()) bag.Values["Key"] = GetParam().stored;
  StdFont fallback;
  fallback.Name = "Fallback";
  for (const bool byDefault : {false, true}) {
    const std::string expected = GetParam().boolean;
    EXPECT_EQ(Outcome([&] { return bag.ReadBoolean("Key", byDefault); }),
              expected == "default" ? Variant(byDefault).ToText() : expected);
  }
  EXPECT_EQ(Outcome([&] { return bag.ReadLong("Key", 7); }), GetParam().number);
  EXPECT_EQ(Outcome([&] { return bag.ReadText("Key", "dflt"); }), GetParam().text);
  EXPECT_EQ(Outcome([&] { return bag.ReadFont("Key", fallback) == fallback ? "Fallback" : "stored"; }),
            GetParam().font);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, TypedRead,
    ::testing::Values(StoredCase{"Missing", Variant(), "default", "7", "dflt", "Fallback"},
                      StoredCase{"TextTrue", Variant("true"), "True", "error 13", "true", "error 13"},
                      StoredCase{"TextFalse", Variant("FALSE"), "False", "error 13", "FALSE", "error 13"},
                      StoredCase{"TextGarbage", Variant("garbage"), "error 13", "error 13", "garbage", "error 13"},
                      StoredCase{"HexText", Variant("&hFF"), "True", "255", "&hFF", "error 13"},
                      StoredCase{"BadHexText", Variant("&hZZ"), "error 13", "error 13", "&hZZ", "error 13"},
                      StoredCase{"TooBig", Variant("99999999999"), "error 6", "error 6", "99999999999", "error 13"},
                      StoredCase{"Zero", Variant(std::int32_t{0}), "False", "0", "0", "error 13"},
                      StoredCase{"MinusOne", Variant(std::int32_t{-1}), "True", "-1", "-1", "error 13"},
                      StoredCase{"False", Variant(false), "False", "0", "False", "error 13"},
                      StoredCase{"Font", Variant(StdFont{}), "error 13", "error 13", "MS Sans Serif", "stored"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace lumo
