#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "colormodel/Enums.h"
#include "colormodel/RuntimeError.h"
#include "colormodel/TextRules.h"
#include "colorsample/ColorSample.h"
#include "support/MemoryPropertyBag.h"
#include "support/RecordingSite.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::MemoryPropertyBag;
using testing::RecordingSite;
using testing::RecordingSurface;
using Lines = std::vector<std::string>;
using Args = std::vector<std::int32_t>;

const StdFont kTahoma{"Tahoma", 9.0};
const StdFont kCourier{"Courier New", 12.0, true};

// A sample placed new on a 120 x 30 pixel surface of a form whose font is Tahoma; the
// recording surface measures 6 pixels a character and 13 a line.
class ColorSampleTest : public ::testing::Test {
 protected:
  ColorSampleTest() {
    site.Font = kTahoma;
    sample.emplace(host.Runtime, surface, site);
    sample->UserControl_InitProperties();
  }
  // The operations of the last drawing, from its Cls on.
  Lines LastDrawing() const {
    Lines ops;
    for (const auto& call : surface.Calls) {
      if (call.Op == "Cls") ops.clear();
      ops.push_back(call.Op);
    }
    return ops;
  }
  testing::TestHost host;
  RecordingSurface surface{120, 30};
  RecordingSite site;
  std::optional<ColorSample> sample;
};

// Every property, in the order of the bag keys.
Lines Values(const ColorSample& s) {
  const std::optional<StdFont> font = s.Font();
  return {text::Hex(s.BackColor()), text::Hex(s.ForeColor()), s.Text(), std::to_string(s.BorderStyle()),
          font ? font->Name + " " + std::to_string(font->Size) : "(none)"};
}

struct Placement {
  const char* name;
  std::int32_t width, height;
  double charWidth, lineHeight;
  std::int32_t x, y;  // where the two-character text is printed
};
void PrintTo(const Placement& p, std::ostream* os) { *os << p.name; }

class ColorSamplePlacement : public ColorSampleTest, public ::testing::WithParamInterface<Placement> {};

TEST_P(ColorSamplePlacement, TextIsCentredByTruncatingHalvesOfTheRoundedSlack) {
  const Placement& p = GetParam();
  surface.CharWidth = p.charWidth;
  surface.LineHeight = p.lineHeight;
  site.Size(p.width * TwipsPerPixel, p.height * TwipsPerPixel);
  sample->SetText("ab");
  sample->UserControl_Resize();
  EXPECT_EQ(surface.CallsOf("Print").back().Args, (Args{p.x, p.y}));
  EXPECT_EQ(surface.CallsOf("Rectangle").back().Args, (Args{0, 0, p.width, p.height}));
}

INSTANTIATE_TEST_SUITE_P(
    Slack, ColorSamplePlacement,
    ::testing::Values(Placement{"EvenSlack", 100, 33, 6, 13, 44, 10},
                      Placement{"OddSlackLeavesTheExtraPixelRightAndBelow", 101, 34, 6, 13, 44, 10},
                      Placement{"NegativeOddSlackTruncatesTowardZero", 5, 10, 6, 13, -3, -1},
                      Placement{"NegativeEvenSlack", 4, 9, 6, 13, -4, -2},
                      Placement{"HalfPixelTextRoundsDownToEven", 100, 30, 6.25, 12.5, 44, 9},
                      Placement{"HalfPixelTextRoundsUpToEven", 101, 31, 6.75, 13.5, 43, 8}),
    [](const auto& info) { return std::string(info.param.name); });

class ColorSampleBorder : public ColorSampleTest, public ::testing::WithParamInterface<std::int32_t> {};

TEST_P(ColorSampleBorder, OnlyFixedSingleFramesAfterTheTextAndLeavesThePenBlack) {
  const bool framed = GetParam() == bcFixedSingle;
  sample->SetForeColor(0x0000FF);
  sample->SetBorderStyle(GetParam());
  EXPECT_EQ(sample->BorderStyle(), GetParam());
  EXPECT_EQ(LastDrawing(), (framed ? Lines{"Cls", "Print", "Rectangle", "Refresh"} : Lines{"Cls", "Print", "Refresh"}));
  EXPECT_EQ(surface.ForeColor(), framed ? 0 : 0x0000FF);
  const auto print = surface.CallsOf("Print").back();
  EXPECT_EQ(print.Text + " " + text::Hex(print.ForeColor) + " on " + text::Hex(print.BackColor), "Sample Text FF on FFFFFF");
}

INSTANTIATE_TEST_SUITE_P(Values, ColorSampleBorder, ::testing::Values(bcNone, bcFixedSingle, 2, -1, 256));

TEST_F(ColorSampleTest, ResizeIgnoresASurfaceThatRefusesTheSize) {
  struct : RecordingSurface {
    void Move(std::int32_t, std::int32_t, std::int32_t, std::int32_t) override { throw RuntimeError(err::InvalidArgument); }
  } refusing;
  ColorSample other(host.Runtime, refusing, site);
  refusing.ClearCalls();
  other.UserControl_Resize();
  EXPECT_TRUE(refusing.Calls.empty());
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(ColorSampleTest, ADrawingFailureIsReportedUnderRefreshAndTheSetterStillNotifies) {
  surface.LineHeight = 3e9;  // the text height no longer fits 32 bits
  sample->SetText("Overflow");
  ASSERT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_EQ(host.Messages.Shown[0].Prompt, "Error Number: 6\r\nModule: ColorSample\r\nProcedure: Refresh\r\n\r\nOverflow\r\n");
  EXPECT_EQ(site.Changed, (Lines{"Text [Let]"}));
}

TEST_F(ColorSampleTest, NoFontGivesTheAmbientFont) {
  EXPECT_EQ(sample->Font(), kTahoma);
  sample->SetFont(kCourier);
  site.Font = {"Verdana", 11.0};
  sample->SetFont(std::nullopt);
  EXPECT_EQ(sample->Font(), site.Font);
  EXPECT_EQ(surface.Font(), site.Font);
}

// Each setter notifies under its own label and redraws; every value survives save and
// load, any border style among them, and an untouched control writes nothing.
TEST_F(ColorSampleTest, SettersNotifyAndRedrawAndTheirValuesSurviveSaveAndLoad) {
  MemoryPropertyBag untouched, bag;
  sample->UserControl_WriteProperties(untouched);
  EXPECT_TRUE(untouched.Values.empty());
  EXPECT_EQ(untouched.WriteOrder, (Lines{"BackColor", "ForeColor", "Text", "BorderStyle", "Font"}));
  surface.ClearCalls();
  sample->SetBackColor(0xFFFF);
  sample->SetForeColor(0x800000);
  sample->SetText("Abc");
  sample->SetBorderStyle(2);
  sample->SetFont(kCourier);
  EXPECT_EQ(site.Changed, (Lines{"BackColor [Let]", "ForeColor [Let]", "Text [Let]", "BorderStyle [Let]", "Font [Let]"}));
  EXPECT_EQ(surface.CountOf("Refresh"), 5);
  sample->UserControl_WriteProperties(bag);
  RecordingSurface otherSurface;
  RecordingSite otherSite;
  ColorSample loaded(host.Runtime, otherSurface, otherSite);
  loaded.UserControl_ReadProperties(bag);
  EXPECT_EQ(Values(loaded), Values(*sample));
  EXPECT_EQ(bag.ReadOrder, untouched.WriteOrder);
  otherSite.Font = kTahoma;
  loaded.UserControl_ReadProperties(untouched);
  EXPECT_EQ(Values(loaded), (Lines{"FFFFFF", "0", "Sample Text", "1", "Tahoma 9.000000"}));
}

// The About box opens over the control's window; the site reaches the sample while it lives.
TEST_F(ColorSampleTest, AboutBoxOverTheControlsWindowAndTheSiteWhileItLives) {
  sample->AboutBox();
  EXPECT_EQ(host.Windows.AboutBoxOwners, std::vector<WindowHandle>{site.hWnd()});
  EXPECT_EQ(site.Control(), &*sample);
  sample.reset();
  EXPECT_EQ(site.Control(), nullptr);
}

}  // namespace
}  // namespace lumo
