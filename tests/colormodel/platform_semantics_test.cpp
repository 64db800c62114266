#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstdint>
#include <limits>
#include <string>

#include "colormodel/CheckedMath.h"
#include "colormodel/Globals.h"
#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"
#include "support/MemoryPropertyBag.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

// What a call answers: its value as text, or "error <number>" when it raises.
template <class Call>
std::string Outcome(Call call) {
  try {
    return Variant(call()).ToText();
  } catch (const RuntimeError& e) {
    return "error " + text::Decimal(e.Number());
  }
}

std::int32_t Apply(char op, std::int32_t a, std::int32_t b) {
  switch (op) {
    case '+': return checked::Add(a, b);
    case '-': return checked::Sub(a, b);
    case '*': return checked::Mul(a, b);
    case '/': return checked::Div(a, b);
    case '%': return checked::Mod(a, b);
    default: return checked::Abs(a);
  }
}

TEST(CheckedArithmetic, GivesTheResultOrRaisesInsteadOfWrapping) {
  const struct {
    char op;
    std::int32_t a, b;
    const char* outcome;
  } cases[] = {{'+', kMax, 1, "error 6"},
               {'-', kMin, 1, "error 6"},
               {'-', 0x00FFFFFF, static_cast<std::int32_t>(0x8000000F), "error 6"},
               {'*', 65536, 32768, "error 6"},
               {'*', -65536, 32768, "-2147483648"},
               {'|', kMin, 0, "error 6"},
               {'/', -7, 2, "-3"},
               {'/', -1, 8, "0"},
               {'/', 1, 0, "error 11"},
               {'/', kMin, -1, "error 6"},
               {'%', -1, 8, "-1"},
               {'%', 3, 0, "error 11"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Outcome([&] { return Apply(c.op, c.a, c.b); }), c.outcome) << c.a << c.op << c.b;
  }
}

TEST(RoundHalfToEven, TiesGoToTheEvenNeighbourAndOutOfRangeOverflows) {
  const std::pair<double, const char*> cases[] = {
      {0.5, "0"},      {1.5, "2"},         {2.5, "2"},      {-0.5, "0"},
      {-1.5, "-2"},    {2.4999, "2"},      {2.5001, "3"},   {-2.5001, "-3"},
      {16.5, "16"},    {2147483647.4, "2147483647"},        {2147483647.5, "error 6"},
      {std::numeric_limits<double>::infinity(), "error 6"}, {std::nan(""), "error 6"}};
  for (const auto& [value, outcome] : cases) {
    EXPECT_EQ(Outcome([value = value] { return checked::Round(value); }), outcome) << value;
  }
}

// Texts and what text::ToLong answers for them.
const std::pair<const char*, const char*> kNumberTexts[] = {
    {"&hFF", "255"},         {"&Hff", "255"},      {"&h0", "0"},         {"&h7FFFFFFF", "2147483647"},
    {"&hFFFFFFFF", "-1"},    {"&h80000000", "-2147483648"},              {"&h000000FF", "255"},
    {"  &h1F  ", "31"},      {"&h100000000", "error 6"},                 {"&h", "error 13"},
    {"&hG0", "error 13"},    {"&h-1", "error 13"}, {"&h1 2", "error 13"}, {"&h3,4", "error 13"},
    {"", "error 13"},        {"#FF", "error 13"},  {"42", "42"},         {"-42", "-42"},
    {"2.5", "2"},            {"3.5", "4"},         {"2147483648", "error 6"},
    {"12abc", "error 13"},   {"-", "error 13"}};

TEST(TextToNumber, AcceptsHexLiteralsAndDecimalsAndRejectsTheRest) {
  for (const auto& [text, outcome] : kNumberTexts) {
    EXPECT_EQ(Outcome([t = text] { return text::ToLong(t); }), outcome) << text;
  }
}

// A C locale whose decimal mark is a comma, as QApplication sets it from LANG: the
// build generates de_DE.UTF-8 into LUMO_TEST_LOCALES, so the test never depends on the
// machine's own locales.
class CommaDecimalLocale : public ::testing::Test {
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

TEST_F(CommaDecimalLocale, TextToNumberReadsTheSameAsEverywhere) {
  for (const auto& [text, outcome] : kNumberTexts) {
    EXPECT_EQ(Outcome([t = text] { return text::ToLong(t); }), outcome) << text;
  }
}

TEST(TextSearch, TextCompareIgnoresCaseBinaryDoesNotAndPositionsAreOneBased) {
  EXPECT_EQ(text::Replace("HEX hex HeX", "hex", "", text::Compare::Text), "  ");
  EXPECT_EQ(text::Replace("HEX hex", "hex", "", text::Compare::Binary), "HEX ");
  EXPECT_EQ(text::Replace(";;;", ";;", "x"), "x;");  // left to right, no overlap
  EXPECT_EQ(text::Replace("abc", "", "x"), "abc");
  EXPECT_EQ(text::InStr(4, "a,b,c", ","), 4);
  EXPECT_EQ(text::InStr(5, "a,b,c", ","), 0);
  EXPECT_EQ(text::InStr(1, "abcABC", "C", text::Compare::Text), 3);
  EXPECT_EQ(text::InStr(1, "abcABC", "C", text::Compare::Binary), 6);
  EXPECT_EQ(text::InStr(9, "abc", "a"), 0);
  EXPECT_EQ(Outcome([] { return text::InStr(0, "abc", "a"); }), "error 5");
}

// Hex digits without a range check, answered without a report.
TEST(IsColor, TestsThreeHexNumbersSilently) {
  testing::TestHost host;
  Globals globals(host.Errors());
  const struct {
    const char *red, *green, *blue;
    bool expected;
  } cases[] = {{"FF", "80", "0", true},  {"ff", "80", "0a", true}, {"FF", "", "0", false}, {"1FF", "0", "0", true},
               {"GG", "0", "0", false}, {"0", "0", "G", false},   {"123456789", "0", "0", false}};
  for (const auto& c : cases) {
    EXPECT_EQ(globals.IsColor(c.red, c.green, c.blue), c.expected) << c.red << "," << c.green << "," << c.blue;
  }
  EXPECT_TRUE(host.Messages.Shown.empty());
}

// A missing key gives the default; a value that does not convert raises the conversion's
// error for the reading control to report.
TEST(TypedRead, ConvertsCompatibleKindsAndFailsOnTheRest) {
  const struct {
    Variant stored;  // empty: the key is missing
    // What each typed read answers, given the defaults 7, "dflt" and a font "Fallback";
    // a boolean "default" is tried both ways, a font answers "Fallback" or "stored".
    const char *boolean, *number, *text, *font;
  } cases[] = {{Variant(), "default", "7", "dflt", "Fallback"},
               {Variant("true"), "True", "error 13", "true", "error 13"},
               {Variant("FALSE"), "False", "error 13", "FALSE", "error 13"},
               {Variant("garbage"), "error 13", "error 13", "garbage", "error 13"},
               {Variant("&hFF"), "True", "255", "&hFF", "error 13"},
               {Variant("&hZZ"), "error 13", "error 13", "&hZZ", "error 13"},
               {Variant("99999999999"), "error 6", "error 6", "99999999999", "error 13"},
               {Variant(std::int32_t{0}), "False", "0", "0", "error 13"},
               {Variant(std::int32_t{-1}), "True", "-1", "-1", "error 13"},
               {Variant(false), "False", "0", "False", "error 13"},
               {Variant(StdFont{}), "error 13", "error 13", "MS Sans Serif", "stored"}};
  StdFont fallback;
  fallback.Name = "Fallback";
  for (const auto& c : cases) {
    testing::MemoryPropertyBag bag;
    if (!c.stored.IsEmpty()) bag.Values["Key"] = c.stored;
    for (const bool byDefault : {false, true}) {
      const std::string expected = std::string(c.boolean) == "default" ? Variant(byDefault).ToText() : c.boolean;
      EXPECT_EQ(Outcome([&] { return bag.ReadBoolean("Key", byDefault); }), expected) << c.stored.ToText();
    }
    EXPECT_EQ(Outcome([&] { return bag.ReadLong("Key", 7); }), c.number) << c.stored.ToText();
    EXPECT_EQ(Outcome([&] { return bag.ReadText("Key", "dflt"); }), c.text);
    const auto font = [&] { return bag.ReadFont("Key", fallback) == fallback ? "Fallback" : "stored"; };
    EXPECT_EQ(Outcome(font), c.font) << c.stored.ToText();
  }
}

}  // namespace
}  // namespace lumo
