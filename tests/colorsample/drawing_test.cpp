#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ColorSampleHarness.h"
#include "colormodel/Enums.h"
#include "colormodel/Geometry.h"
#include "colormodel/RuntimeError.h"

namespace lumo {
namespace {

using testing::ColorSampleHarness;
using Ops = std::vector<std::string>;

TEST_F(ColorSampleHarness, NewSampleShowsSampleTextInBlackOnWhiteCentredInABlackFrame) {
  const auto print = surface.CallsOf("Print").back();
  EXPECT_EQ(print.Text, "Sample Text");
  EXPECT_EQ(print.ForeColor, 0);
  EXPECT_EQ(print.BackColor, 0xFFFFFF);
  EXPECT_EQ(print.Args, (std::vector<std::int32_t>{(120 - 66) / 2, (30 - 13) / 2}));
  const auto frame = surface.CallsOf("Rectangle").back();
  EXPECT_EQ(frame.Args, (std::vector<std::int32_t>{0, 0, 120, 30}));
  EXPECT_EQ(frame.FillStyle, fill::Transparent);
  EXPECT_EQ(LastDrawing(), (Ops{"Cls", "Print", "Rectangle", "Refresh"}));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ColorSampleHarness, EmptyTextDrawsOnlyTheBackgroundAndTheFrame) {
  sample->SetText("");
  EXPECT_EQ(surface.CallsOf("Print").back().Text, "");
  EXPECT_EQ(LastDrawing(), (Ops{"Cls", "Print", "Rectangle", "Refresh"}));
}

struct Placement {
  const char* name;
  std::int32_t width, height;
  double charWidth, lineHeight;
  std::int32_t x, y;  // where the two-character text "ab" is printed
};
void PrintTo(const Placement& p, std::ostream* os) { *os << p.name; }

class ColorSamplePlacement : public ColorSampleHarness, public ::testing::WithParamInterface<Placement> {};

TEST_P(ColorSamplePlacement, TextIsCentredWithTruncatingHalvesOfTheRoundedSlack) {
  const Placement& p = GetParam();
  surface.CharWidth = p.charWidth;
  surface.LineHeight = p.lineHeight;
  site.Size(p.width * TwipsPerPixel, p.height * TwipsPerPixel);
  sample->SetText("ab");
  sample->UserControl_Resize();
  EXPECT_EQ(surface.CallsOf("Print").back().Args, (std::vector<std::int32_t>{p.x, p.y}));
  EXPECT_EQ(surface.CallsOf("Rectangle").back().Args, (std::vector<std::int32_t>{0, 0, p.width, p.height}));
}

INSTANTIATE_TEST_SUITE_P(
    Slack, ColorSamplePlacement,
    ::testing::Values(Placement{"EvenSlack", 100, 33, 6, 13, 44, 10},
                      Placement{"OddSlackLeavesTheExtraPixelRightAndBelow", 101, 34, 6, 13, 44, 10},
                      Placement{"NegativeOddSlackTruncatesTowardZero", 5, 10, 6, 13, -3, -1},
                      Placement{"NegativeEvenSlack", 4, 9, 6, 13, -4, -2},
                      Placement{"WidthHalfRoundsDownToEven", 100, 30, 6.25, 12.5, 44, 9},
                      Placement{"WidthHalfRoundsUpToEven", 101, 31, 6.75, 13.5, 43, 8}),
    [](const auto& info) { return std::string(info.param.name); });

class ColorSampleBorder : public ColorSampleHarness, public ::testing::WithParamInterface<std::int32_t> {};

TEST_P(ColorSampleBorder, OnlyFixedSingleDrawsTheFrameAfterTheTextAndLeavesThePenBlack) {
  const bool framed = GetParam() == bcFixedSingle;
  sample->SetForeColor(0x0000FF);
  sample->SetBorderStyle(GetParam());
  EXPECT_EQ(sample->BorderStyle(), GetParam());
  EXPECT_EQ(LastDrawing(), (framed ? Ops{"Cls", "Print", "Rectangle", "Refresh"} : Ops{"Cls", "Print", "Refresh"}));
  EXPECT_EQ(surface.CallsOf("Print").back().ForeColor, 0x0000FF);
  EXPECT_EQ(surface.ForeColor(), framed ? 0 : 0x0000FF);
}

INSTANTIATE_TEST_SUITE_P(Values, ColorSampleBorder, ::testing::Values(bcNone, bcFixedSingle, 2, -1, 256));

TEST_F(ColorSampleHarness, ResizeCoversTheControlAndIgnoresAFailingSurface) {
  site.Size(150 * TwipsPerPixel, 45 * TwipsPerPixel);
  sample->UserControl_Resize();
  EXPECT_EQ(surface.CallsOf("Move").back().Args, (std::vector<std::int32_t>{0, 0, 2250, 675}));
  EXPECT_EQ(surface.CallsOf("Rectangle").back().Args, (std::vector<std::int32_t>{0, 0, 150, 45}));

  // A surface that refuses the size: no message, and nothing is drawn.
  class RefusingSurface : public testing::RecordingSurface {
    void Move(std::int32_t, std::int32_t, std::int32_t, std::int32_t) override {
      throw RuntimeError(err::InvalidArgument);
    }
  } refusing;
  ColorSample other(host.Runtime, refusing, site);
  refusing.ClearCalls();
  other.UserControl_Resize();
  EXPECT_TRUE(refusing.Calls.empty());
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ColorSampleHarness, ADrawingFailureIsReportedUnderRefreshAndTheSetterStillNotifies) {
  surface.LineHeight = 3e9;  // the text height no longer fits 32 bits
  sample->SetText("Overflow");
  EXPECT_EQ(Messages(), (std::vector<std::string>{
                            "Error Number: 6\r\nModule: ColorSample\r\nProcedure: Refresh\r\n\r\nOverflow\r\n"}));
  EXPECT_EQ(site.Changed, (std::vector<std::string>{"Text [Let]"}));
  EXPECT_EQ(sample->Text(), "Overflow");
}

}  // namespace
}  // namespace lumo
