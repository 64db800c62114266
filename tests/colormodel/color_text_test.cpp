#include <gtest/gtest.h>

#include <string>

#include "colormodel/CColorboxEl.h"
#include "colormodel/Globals.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::TestHost;

struct ColorTextCase {
  OLE_COLOR color;
  const char* commaText;  // "" with a report of the invalid argument
  const char* hashText;
};

class CellColorText : public ::testing::TestWithParam<ColorTextCase> {};

TEST_P(CellColorText, RedFirstTwoUpperCaseDigitsPerComponentOrAReportUnderTheCellsName) {
  TestHost host;
  CColorboxEl cell(host.Errors());
  cell.SetName("Red");
  cell.SetColor(GetParam().color);
  EXPECT_EQ(cell.GetColorString(), GetParam().commaText);
  EXPECT_EQ(cell.GetColorStringHex(), GetParam().hashText);
  if (*GetParam().commaText != '\0') {
    EXPECT_TRUE(host.Messages.Shown.empty());
  } else {
    ASSERT_EQ(host.Messages.Shown.size(), 2u);
    EXPECT_EQ(host.Messages.Shown[0].Prompt,
              "Error Number: 5\r\nModule: Red\r\nProcedure: GetColorString\r\n\r\nInvalid argument\r\n");
    EXPECT_NE(host.Messages.Shown[1].Prompt.find("Procedure: GetColorStringHex\r\n"), std::string::npos);
  }
}

INSTANTIATE_TEST_SUITE_P(Boundaries, CellColorText,
                         ::testing::Values(ColorTextCase{0, "00,00,00", "#000000"},
                                           ColorTextCase{1, "01,00,00", "#010000"},
                                           ColorTextCase{0x10000, "00,00,01", "#000001"},
                                           ColorTextCase{RGB(0x40, 0x80, 0xC0), "40,80,C0", "#4080C0"},
                                           ColorTextCase{0xFFFFFF, "FF,FF,FF", "#FFFFFF"},
                                           ColorTextCase{0x01000000, "", ""}, ColorTextCase{-1, "", ""},
                                           ColorTextCase{static_cast<OLE_COLOR>(0x80000010), "", ""}));

struct IsColorCase {
  const char* red;
  const char* green;
  const char* blue;
  bool expected;
};

class IsColor : public ::testing::TestWithParam<IsColorCase> {};

TEST_P(IsColor, TestsHexNumbersWithoutRangeCheckAndSilently) {
  TestHost host;
  Globals globals(host.Errors());
  const IsColorCase& c = GetParam();
  EXPECT_EQ(globals.IsColor(c.red, c.green, c.blue), c.expected);
  EXPECT_TRUE(host.Messages.Shown.empty());
  EXPECT_EQ(globals.FormatHexText(c.red), std::string("Hex={") + c.red + "}");
}

INSTANTIATE_TEST_SUITE_P(Texts, IsColor,
                         ::testing::Values(IsColorCase{"FF", "80", "0", true}, IsColorCase{"ff", "80", "0a", true},
                                           IsColorCase{"FF", "", "0", false}, IsColorCase{"1FF", "0", "0", true},
                                           IsColorCase{"GG", "0", "0", false}, IsColorCase{"0", "0", "G", false},
                                           IsColorCase{"123456789", "0", "0", false}));

}  // namespace
}  // namespace lumo
