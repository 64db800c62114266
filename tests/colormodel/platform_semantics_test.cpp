#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>

#include "colormodel/CheckedMath.h"
#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"

namespace lumo {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

std::optional<std::int32_t> ErrorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.Number();
  }
  return std::nullopt;
}

struct ArithmeticCase {
  const char* name;
  std::function<std::int32_t()> op;
  std::optional<std::int32_t> result;  // empty: must raise `error`
  std::int32_t error;
};

class CheckedArithmetic : public ::testing::TestWithParam<ArithmeticCase> {};

TEST_P(CheckedArithmetic, GivesResultOrRaisesInsteadOfWrapping) {
  const ArithmeticCase& c = GetParam();
  if (c.result) {
    EXPECT_EQ(c.op(), *c.result);
  } else {
    EXPECT_EQ(ErrorOf([&] { c.op(); }), c.error);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Boundaries, CheckedArithmetic,
    ::testing::Values(
        ArithmeticCase{"AddPastMax", [] { return checked::Add(kMax, 1); }, std::nullopt, err::Overflow},
        ArithmeticCase{"SubPastMin", [] { return checked::Sub(kMin, 1); }, std::nullopt, err::Overflow},
        ArithmeticCase{"SubSystemColourFromColour",
                       [] { return checked::Sub(0x00FFFFFF, static_cast<std::int32_t>(0x8000000F)); },
                       std::nullopt, err::Overflow},
        ArithmeticCase{"MulPastMax", [] { return checked::Mul(65536, 32768); }, std::nullopt, err::Overflow},
        ArithmeticCase{"MulNegative", [] { return checked::Mul(-65536, 32768); }, kMin, 0},
        ArithmeticCase{"AbsOfMin", [] { return checked::Abs(kMin); }, std::nullopt, err::Overflow},
        ArithmeticCase{"DivTruncatesNegative", [] { return checked::Div(-7, 2); }, -3, 0},
        ArithmeticCase{"DivTruncatesSmallNegative", [] { return checked::Div(-1, 8); }, 0, 0},
        ArithmeticCase{"DivByZero", [] { return checked::Div(1, 0); }, std::nullopt, err::DivisionByZero},
        ArithmeticCase{"DivMinByMinusOne", [] { return checked::Div(kMin, -1); }, std::nullopt, err::Overflow},
        ArithmeticCase{"ModKeepsSignOfDividend", [] { return checked::Mod(-1, 8); }, -1, 0},
        ArithmeticCase{"ModByZero", [] { return checked::Mod(3, 0); }, std::nullopt, err::DivisionByZero}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(RoundHalfToEven, TiesGoToTheEvenNeighbourAndOutOfRangeOverflows) {
  const std::pair<double, std::int32_t> cases[] = {{0.5, 0},     {1.5, 2},     {2.5, 2},       {-0.5, 0},
                                                   {-1.5, -2},   {2.4999, 2},  {2.5001, 3},    {-2.5001, -3},
                                                   {16.5, 16},   {17.0, 17},   {2147483647.4, kMax}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(checked::Round(value), expected) << value;
  for (const double bad : {2147483647.5, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(ErrorOf([=] { checked::Round(bad); }), err::Overflow) << bad;
  }
}

struct ConversionCase {
  const char* text;
  std::optional<std::int32_t> value;  // empty: must fail with `error`
  std::int32_t error;
};

class TextToNumber : public ::testing::TestWithParam<ConversionCase> {};

TEST_P(TextToNumber, AcceptsHexLiteralsAndDecimalsRejectsTheRest) {
  const ConversionCase& c = GetParam();
  if (c.value) {
    EXPECT_EQ(text::ToLong(c.text), *c.value) << c.text;
  } else {
    EXPECT_EQ(ErrorOf([&] { text::ToLong(c.text); }), c.error) << c.text;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Forms, TextToNumber,
    ::testing::Values(ConversionCase{"&hFF", 255, 0}, ConversionCase{"&Hff", 255, 0},
                      ConversionCase{"&h0", 0, 0}, ConversionCase{"&h7FFFFFFF", kMax, 0},
                      ConversionCase{"&hFFFFFFFF", -1, 0}, ConversionCase{"&h80000000", kMin, 0},
                      ConversionCase{"&h000000FF", 255, 0}, ConversionCase{"  &h1F  ", 31, 0},
                      ConversionCase{"&h100000000", std::nullopt, err::Overflow},
                      ConversionCase{"&h", std::nullopt, err::TypeMismatch},
                      ConversionCase{"&hG0", std::nullopt, err::TypeMismatch},
                      ConversionCase{"&h-1", std::nullopt, err::TypeMismatch},
                      ConversionCase{"&h1 2", std::nullopt, err::TypeMismatch},
                      ConversionCase{"&h3,4", std::nullopt, err::TypeMismatch},
                      ConversionCase{"", std::nullopt, err::TypeMismatch},
                      ConversionCase{"#FF", std::nullopt, err::TypeMismatch},
                      ConversionCase{"42", 42, 0}, ConversionCase{"-42", -42, 0},
                      ConversionCase{"2.5", 2, 0}, ConversionCase{"3.5", 4, 0},
                      ConversionCase{"2147483648", std::nullopt, err::Overflow},
                      ConversionCase{"12abc", std::nullopt, err::TypeMismatch},
                      ConversionCase{"-", std::nullopt, err::TypeMismatch}));

TEST(ReplaceText, TextCompareIgnoresCaseBinaryDoesNot) {
  EXPECT_EQ(text::Replace("Hex={ff}", "hex", "", text::Compare::Text), "={ff}");
  EXPECT_EQ(text::Replace("HEX hex HeX", "hex", "", text::Compare::Text), "  ");
  EXPECT_EQ(text::Replace("HEX hex", "hex", "", text::Compare::Binary), "HEX ");
  EXPECT_EQ(text::Replace(";;;", ";;", "x"), "x;");  // left to right, no overlap
  EXPECT_EQ(text::Replace("abc", "", "x"), "abc");
}

TEST(InStrText, FindsOneBasedPositionsFromStart) {
  EXPECT_EQ(text::InStr(1, "a,b,c", ","), 2);
  EXPECT_EQ(text::InStr(3, "a,b,c", ","), 4);
  EXPECT_EQ(text::InStr(5, "a,b,c", ","), 0);
  EXPECT_EQ(text::InStr(1, "abcABC", "C", text::Compare::Text), 3);
  EXPECT_EQ(text::InStr(1, "abcABC", "C", text::Compare::Binary), 6);
  EXPECT_EQ(text::InStr(9, "abc", "a"), 0);
  EXPECT_EQ(ErrorOf([] { text::InStr(0, "abc", "a"); }), err::InvalidArgument);
}

}  // namespace
}  // namespace lumo
