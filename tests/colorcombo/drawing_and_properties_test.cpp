#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "ComboHarness.h"
#include "colorcombo/ComboPainter.h"
#include "colormodel/Enums.h"

namespace lumo {
namespace {

using testing::ComboHarness;
using testing::Dropdown;
using testing::Lines;
using testing::MemoryPropertyBag;
using testing::SurfaceCall;
using Args = std::vector<std::int32_t>;
using PenLines = std::vector<std::pair<Args, OLE_COLOR>>;

constexpr OLE_COLOR kLight = SystemColor(22), kDarkShadow = SystemColor(21);

PenLines LinesOf(const std::vector<SurfaceCall>& calls, std::optional<OLE_COLOR> pen = std::nullopt) {
  PenLines lines;
  for (const auto& c : calls) {
    if (c.Op == "Line" && (!pen || c.ForeColor == *pen)) lines.emplace_back(c.Args, c.ForeColor);
  }
  return lines;
}

// --- frames and drop button per style ----------------------------------------------------------

struct StyleLook {
  std::int32_t style;
  std::int32_t buttonWidth;
  bool edgeRoundTheField;
  std::size_t frameLines;  // the separator's two, or the frame's eight
};
void PrintTo(const StyleLook& s, std::ostream* os) { *os << "Style" << s.style; }

class Styles : public ComboHarness, public ::testing::WithParamInterface<StyleLook> {
 protected:
  // Redraws in `style` and gives the lines drawn, the black arrow aside.
  PenLines Frame(std::int32_t style) {
    combo->SetStyle(style);
    surface.ClearCalls();
    combo->Refresh();
    auto lines = LinesOf(surface.Calls);
    std::erase_if(lines, [](const auto& l) { return l.second == 0; });
    return lines;
  }
};

TEST_P(Styles, DrawTheirFrameAndDropButton) {
  const StyleLook& s = GetParam();
  const PenLines lines = Frame(s.style);
  const std::int32_t w = kWidth, h = combo->GetHeight();
  const Rect b = combo->DropButtonRect();
  EXPECT_EQ(b, (Rect{w - s.buttonWidth - 2, 2, w - 2, h - 1}));
  const auto edges = surface.CallsOf("DrawEdge");
  const bool button = s.buttonWidth > 0;
  ASSERT_EQ(edges.size(), (s.edgeRoundTheField ? 1u : 0u) + (button ? 1u : 0u));
  if (s.edgeRoundTheField) {
    EXPECT_EQ(edges.front().Args, (Args{0, 0, w, h, edge::Raised, edge::AllSides}));
  }
  if (button) {
    EXPECT_EQ(edges.back().Args, (Args{b.Left, b.Top, b.Right, b.Bottom, edge::Raised, edge::AllSides}));
  }
  EXPECT_EQ(lines.size(), s.frameLines);
  if (s.edgeRoundTheField) {  // an etched separator: shadow left of the button, highlight on its edge
    EXPECT_EQ(lines, (PenLines{{{b.Left - 1, 2, b.Left - 1, b.Bottom}, sys::ButtonShadow},
                               {{b.Left, 2, b.Left, b.Bottom}, sys::ButtonHighlight}}));
  }
  // Whatever the frame, the colour bar is drawn and the whole shown.
  EXPECT_EQ(surface.CallsOf("Rectangle").at(button ? 1 : 0).Args, (Args{8, 4, w - s.buttonWidth - 8, h - 4}));
  EXPECT_EQ(surface.Calls.back().Op, "Refresh");
}

INSTANTIATE_TEST_SUITE_P(EachStyle, Styles,
                         ::testing::Values(StyleLook{cscDropDown, 13, true, 2}, StyleLook{cscCombobox, 13, false, 8},
                                           StyleLook{cscButton, 0, false, 8}, StyleLook{cscButtonNoText, 0, false, 8},
                                           StyleLook{5, 0, false, 0}),
                         [](const auto& info) { return "Style" + std::to_string(info.param.style); });

// The sunken field is two rings, dark above and left and light below and right, each
// inner line stopping short of the outer ring; the raised button is the same frame with
// light and shade swapped.
TEST_F(Styles, TheButtonFrameIsTheSunkenFieldLitTheOtherWay) {
  const std::int32_t w = kWidth, h = combo->GetHeight();
  const PenLines sunken = Frame(cscCombobox);
  std::vector<Args> where;
  for (const auto& line : sunken) where.push_back(line.first);
  EXPECT_EQ(where, (std::vector<Args>{{0, 0, w, 0}, {0, 0, 0, h}, {1, 1, w - 1, 1}, {1, 1, 1, h - 2},
                                       {0, h - 1, w - 1, h - 1}, {w - 1, 0, w - 1, h - 1},
                                       {1, h - 2, w - 1, h - 2}, {w - 2, 1, w - 2, h - 2}}));
  EXPECT_EQ(std::pair(sunken.front().second, sunken.at(4).second), std::pair(sys::ButtonShadow, sys::ButtonHighlight));
  PenLines swapped = Frame(cscButton);
  for (auto& [args, pen] : swapped) {
    pen = pen == sys::ButtonHighlight ? sys::ButtonShadow
          : pen == sys::ButtonShadow  ? sys::ButtonHighlight
          : pen == kLight             ? kDarkShadow
                                      : kLight;
  }
  EXPECT_EQ(swapped, sunken);
}

// The arrow is centred with halves truncated toward zero: in the 13 x 18 button it
// starts one pixel left of the button and one below its top. The focus mark frames the
// bar while the control has the focus and is not dropped down.
TEST_F(ComboHarness, WhileOpenTheButtonIsSunkenAndTheFocusMarkOff) {
  const Rect b = combo->DropButtonRect();
  const auto lastEdge = [&] { return surface.CallsOf("DrawEdge").back().Args; };
  const auto marks = [&] {
    surface.ClearCalls();
    combo->Refresh();
    return surface.CallsOf("DrawFocusRect");
  };
  combo->UserControl_EnterFocus();
  ASSERT_EQ(marks().size(), 1u);
  EXPECT_EQ(marks().at(0).Args, (Args{4, 2, kWidth - 13 - 4, combo->GetHeight() - 2}));
  Open([&](Dropdown& d) {
    EXPECT_EQ(lastEdge(), (Args{b.Left, b.Top, b.Right, b.Bottom, edge::Sunken, edge::AllSides}));
    d.Hover(testing::kWhite);  // a preview's redraw keeps the pressed look
    EXPECT_EQ(lastEdge(), (Args{b.Left, b.Top, b.Right, b.Bottom, edge::Sunken, edge::AllSides}));
    EXPECT_TRUE(marks().empty());
    d.form.Deactivate();
  });
  EXPECT_EQ(lastEdge(), (Args{b.Left, b.Top, b.Right, b.Bottom, edge::Raised, edge::AllSides}));
  const auto arrow = LinesOf(surface.Calls, 0);
  ASSERT_GE(arrow.size(), 3u);
  EXPECT_EQ(arrow.end()[-3].first, (Args{b.Left - 1, b.Top + 1, b.Left + 4, b.Top + 1}));
  combo->UserControl_ExitFocus();
  EXPECT_TRUE(marks().empty());
}

// One line per run of one colour on one row; the pen, its width and position stay.
TEST(PaintPicture, DrawsEachRunOfOneColourAsOneLineAndKeepsThePen) {
  testing::RecordingSurface surface;
  DrawingSurface& target = surface;
  target.SetForeColor(0x123456);
  target.SetDrawWidth(3);
  target.MoveToEx(7, 7);
  target.PaintPicture(Picture{4, 2, {{0, 0, 0xFF}, {1, 0, 0xFF}, {2, 0, 0xF0}, {3, 0, 0xF0}, {1, 1, 0xFF}, {3, 1, 0xFF}}},
                      10, 20);
  EXPECT_EQ(LinesOf(surface.Calls), (PenLines{{{10, 20, 12, 20}, 0xFF},
                                              {{12, 20, 14, 20}, 0xF0},
                                              {{11, 21, 12, 21}, 0xFF},
                                              {{13, 21, 14, 21}, 0xFF}}));
  EXPECT_EQ(surface.Calls.front().DrawWidth, 1);
  EXPECT_EQ(std::tuple(target.ForeColor(), target.DrawWidth(), target.PenPosition()),
            std::tuple(0x123456, 3, Point{7, 7}));
}

// --- the colour bar ------------------------------------------------------------------------------

struct BarCase {
  const char* name;
  std::function<void(ColorCombo&, testing::RecordingSite&)> setup;
  bool square;  // the colour box is a square at the left end, else the whole bar
  bool boxed;
  OLE_COLOR swatch;
  std::string text;
  OLE_COLOR textColor;
};
void PrintTo(const BarCase& c, std::ostream* os) { *os << c.name; }

class ColourBar : public ComboHarness, public ::testing::WithParamInterface<BarCase> {};

TEST_P(ColourBar, ShowsTheColourOrTheAutomaticChoiceWithItsText) {
  const BarCase& c = GetParam();
  combo->SetForeColor(0x1234);
  combo->SetAutoColor(0x5678);
  c.setup(*combo, site);
  surface.ClearCalls();
  combo->Refresh();
  const std::int32_t right = kWidth - combo->GetButtonWidth() - 8, bottom = combo->GetHeight() - 4;
  const std::int32_t squareRight = 8 + bottom - 4;
  std::vector<SurfaceCall> boxes;
  for (const auto& r : surface.CallsOf("Rectangle")) {
    if (r.ForeColor == sys::HighlightText) boxes.push_back(r);
  }
  ASSERT_EQ(boxes.size(), c.boxed ? 1u : 0u);
  if (c.boxed) {
    EXPECT_EQ(boxes[0].Args, (Args{8, 4, c.square ? squareRight : right, bottom}));
    EXPECT_EQ(std::pair(boxes[0].FillColor, boxes[0].FillStyle), std::pair(c.swatch, fill::Solid));
  }
  const auto texts = surface.CallsOf("DrawTextA");
  ASSERT_EQ(texts.size(), c.text.empty() ? 0u : 1u);
  if (!c.text.empty()) {
    EXPECT_EQ(texts[0].Text, c.text);
    EXPECT_EQ(texts[0].Args, (Args{squareRight + 4, 4, right, bottom, 0}));
    EXPECT_EQ(texts[0].ForeColor, c.textColor);
  }
  EXPECT_EQ(surface.FillStyle(), fill::Transparent);
  EXPECT_EQ(site.Enabled, c.textColor != sys::GrayText);  // a designer keeps it selectable
}

INSTANTIATE_TEST_SUITE_P(
    EachLook, ColourBar,
    ::testing::Values(
        BarCase{"Automatic", [](ColorCombo&, auto&) {}, true, true, 0x5678, "Automatic", 0x1234},
        BarCase{"AutomaticWithoutColourBox", [](ColorCombo& c, auto&) { c.SetAllowAutoColorBox(false); }, true,
                false, 0, "Automatic", 0x1234},
        BarCase{"Colour", [](ColorCombo& c, auto&) { c.SetIsAutomatic(false); }, false, true, 0x663300, "", 0},
        BarCase{"ButtonCaption",
                [](ColorCombo& c, auto&) {
                  c.SetIsAutomatic(false);
                  c.SetStyle(cscButton);
                  c.SetCaption("&Fill");
                },
                true, true, 0x663300, "&Fill", 0x1234},
        BarCase{"DisabledAtRunTime", [](ColorCombo& c, auto&) { c.SetEnabled(false); }, true, true, 0x5678,
                "Automatic", sys::GrayText},
        BarCase{"DisabledInADesigner",
                [](ColorCombo& c, testing::RecordingSite& s) {
                  s.UserMode = false;
                  c.SetEnabled(false);
                },
                true, true, 0x5678, "Automatic", 0x1234}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ComboHarness, ColourSetFromCodeRedrawsOnlyTheBarAndRaisesNothing) {
  combo->SetIsAutomatic(false);
  surface.ClearCalls();
  combo->SetColor(0xFF);
  EXPECT_EQ(surface.CountOf("Cls") + surface.CountOf("DrawEdge"), 0);
  EXPECT_EQ(surface.CallsOf("Rectangle").back().FillColor, 0xFF);
  EXPECT_EQ(surface.Calls.back().Op, "Refresh");
  EXPECT_TRUE(Log.empty());
}

// --- height and access key ------------------------------------------------------------------------

class Height : public ComboHarness, public ::testing::WithParamInterface<std::pair<double, std::int32_t>> {};

// The text height of "A" plus 8, rounded half to even; the user's height never sticks.
TEST_P(Height, FollowsTheFontAndNeverTheUser) {
  const auto [lineHeight, pixels] = GetParam();
  surface.LineHeight = lineHeight;
  combo->SetFont(StdFont{"Big", 20});
  EXPECT_EQ(site.HeightTwips, pixels * 15 + 1);
  EXPECT_EQ(surface.CallsOf("Move").back().Args, (Args{0, 0, kWidth * 15, pixels * 15}));
  EXPECT_EQ(combo->DropButtonRect().Bottom, pixels - 1);
  site.Size(site.WidthTwips, 5000);
  combo->UserControl_Resize();
  EXPECT_EQ(site.HeightTwips, pixels * 15 + 1);
}

INSTANTIATE_TEST_SUITE_P(FontSizes, Height,
                         ::testing::Values(std::pair{13.0, 21}, std::pair{20.5, 28}, std::pair{21.5, 30}));

struct AccessKey {
  std::int32_t style;
  const char* caption;
  const char* key;
};
void PrintTo(const AccessKey& a, std::ostream* os) { *os << a.style << " " << a.caption; }

class AccessKeys : public ComboHarness, public ::testing::WithParamInterface<AccessKey> {};

TEST_P(AccessKeys, OnlyAButtonShowingItsCaptionTakesTheCharacterAfterTheFirstAmpersand) {
  site.AccessKeys = "x";
  combo->SetStyle(GetParam().style);
  combo->SetCaption(GetParam().caption);
  EXPECT_EQ(site.AccessKeys, GetParam().key);
}

INSTANTIATE_TEST_SUITE_P(Captions, AccessKeys,
                         ::testing::Values(AccessKey{cscButton, "&Colour", "C"}, AccessKey{cscButton, "Co&l&our", "l"},
                                           AccessKey{cscButton, "Colour&", ""}, AccessKey{cscButton, "Colour", ""},
                                           AccessKey{cscButtonNoText, "&Colour", ""},
                                           AccessKey{cscDropDown, "&Colour", ""}));

TEST_F(ComboHarness, NewControlShowsTheAutomaticColourUnderTheHostsNameAndFont) {
  site.DisplayName = "ColorCombo1";
  site.Font = StdFont{"Tahoma", 9};
  combo->UserControl_InitProperties();
  EXPECT_EQ(std::tuple(combo->Caption(), surface.Font(), combo->Color(), combo->IsAutomatic()),
            std::tuple("ColorCombo1", site.Font, 0x663300, true));
  EXPECT_EQ(surface.CallsOf("Rectangle").back().FillColor, sys::ButtonShadow);  // the automatic colour
  ASSERT_NE(combo->EventPass(), nullptr);
  EXPECT_NE(combo->EventPass()->Listener(), nullptr);
}

// Each setter notifies once under its own label, the irregular "Color" and
// "Forecolor [Let]" included; the focus mark is no persisted property.
TEST_F(ComboHarness, SettersNotifyTheHostUnderTheirOwnLabels) {
  combo->SetColor(1);
  combo->SetForeColor(1);
  combo->SetFont(StdFont{"Arial", 12});
  combo->SetAllowAutomatic(false);
  combo->SetHasFocus(true);
  EXPECT_EQ(site.Changed, (Lines{"Color", "Forecolor [Let]", "Font [Set]", "AllowAutomatic [Let]"}));
}

TEST_F(ComboHarness, AutomaticNeedsAllowAutomaticAndOnlyPickStyleIsKeptInRange) {
  combo->SetAllowAutomatic(false);
  EXPECT_FALSE(combo->IsAutomatic());
  combo->SetIsAutomatic(true);
  EXPECT_FALSE(combo->IsAutomatic());
  for (const std::int32_t style : {15, -1}) {
    combo->SetPickStyle(cpsPalette40);
    combo->SetPickStyle(style);
    EXPECT_EQ(combo->PickStyle(), cpsStandard) << style;
  }
  combo->SetStyle(7);
  combo->SetOpenEffect(9);
  EXPECT_EQ(std::pair(combo->Style(), combo->OpenEffect()), std::pair(7, 9));
}

// Loaded into a second control and written again, every property comes back.
TEST_F(ComboHarness, PersistenceRoundTripKeepsEveryPropertyUnderTheForecolorKey) {
  combo->SetAllowHotTracking(false);
  combo->SetAllowAutoColorBox(false);
  combo->SetCaption("&Ink");
  combo->SetStyle(cscButton);
  combo->SetOpenEffect(oecUnfold);
  combo->SetPickStyle(cpsPalette48);
  combo->SetEnabled(false);
  combo->SetAutomaticText("Auto");
  combo->SetMoreColorsText("More");
  combo->SetIsAutomatic(false);
  combo->SetAutoColor(0x11);
  combo->SetColor(0x22);
  combo->SetForeColor(0x33);
  combo->SetBackColor(0x44);
  combo->SetFont(StdFont{"Arial", 12});
  combo->SetAllowMoreColors(false);
  MemoryPropertyBag bag, again;
  combo->UserControl_WriteProperties(bag);
  EXPECT_EQ(std::pair(bag.Values.count("Forecolor"), bag.Values.count("ForeColor")), std::pair(1ul, 0ul));
  EXPECT_EQ(bag.Values.size(), 16u);  // all but AllowAutomatic, left at its default

  testing::RecordingSurface otherSurface;
  testing::RecordingSite otherSite;
  ColorCombo loaded(host.Runtime, otherSurface, otherSite, *this);
  loaded.UserControl_ReadProperties(bag);
  loaded.UserControl_WriteProperties(again);
  EXPECT_EQ(again.Values, bag.Values);
  EXPECT_EQ(bag.ReadOrder, bag.WriteOrder);
  EXPECT_EQ(otherSite.AccessKeys, "I");
}

TEST_F(ComboHarness, LoadingTakesStoredValuesAsTheyAreAndDefaultsForTheRest) {
  MemoryPropertyBag bag;
  bag.Values = {{"PickStyle", Variant(99)},
                {"AllowAutomatic", Variant(false)},
                {"IsAutomatic", Variant(true)}};
  site.Font = StdFont{"Tahoma", 9};
  combo->UserControl_ReadProperties(bag);
  EXPECT_EQ(std::tuple(combo->PickStyle(), combo->IsAutomatic(), combo->AllowAutomatic(), combo->Color()),
            std::tuple(99, true, false, 0x663300));
  EXPECT_EQ(std::pair(combo->Caption(), combo->Font()), std::pair(std::string(), site.Font));
  EXPECT_TRUE(host.Messages.Shown.empty());
}

// --- reported failures ------------------------------------------------------------------------------

struct Failure {
  const char* name;
  double lineHeight;
  std::int32_t surfaceWidth;
  std::int32_t style;
  Lines reported;
};
void PrintTo(const Failure& f, std::ostream* os) { *os << f.name; }

class Failures : public ComboHarness, public ::testing::WithParamInterface<Failure> {};

// A failing step reports under its own procedure, a failure of the redraw's own
// arithmetic under "Refresh"; the setter that started it still notifies.
TEST_P(Failures, AreReportedUnderTheProcedureThatFailed) {
  const Failure& f = GetParam();
  testing::RecordingSurface odd(f.surfaceWidth, 21);
  odd.LineHeight = f.lineHeight;
  testing::RecordingSite oddSite;
  ColorCombo control(host.Runtime, odd, oddSite, *this);
  control.SetStyle(f.style);
  EXPECT_EQ(Reported(), f.reported);
  EXPECT_EQ(oddSite.Changed, Lines{"Style [Let]"});
  for (const auto& m : host.Messages.Shown) EXPECT_NE(m.Prompt.find("Module: LumoDropdown"), std::string::npos);
}

constexpr std::int32_t kNarrowest = std::numeric_limits<std::int32_t>::min() + 5;

INSTANTIATE_TEST_SUITE_P(Representative, Failures,
                         ::testing::Values(Failure{"TextTooTall", 3e9, 120, 5, {"GetHeight"}},
                                           Failure{"ButtonOffTheSurface", 13, kNarrowest, cscDropDown, {"Refresh"}},
                                           Failure{"BarOffTheSurface", 13, kNarrowest, 5, {"DrawColorBar"}}),
                         [](const auto& info) { return std::string(info.param.name); });

// --- input ------------------------------------------------------------------------------------------------

struct Key {
  std::int16_t code;
  std::int16_t shift;
  bool opens;
};
void PrintTo(const Key& k, std::ostream* os) { *os << k.code << "+" << k.shift; }

class Keys : public ComboHarness, public ::testing::WithParamInterface<Key> {};

TEST_P(Keys, ArrowsAndF4OpenTheDropDownWhateverTheShiftState) {
  CancelIn = "BeforeDropDown";
  surface.Key(GetParam().code, GetParam().shift);
  EXPECT_EQ(Log, GetParam().opens ? Lines{"BeforeDropDown"} : Lines{});
}

INSTANTIATE_TEST_SUITE_P(OnTheClosedControl, Keys,
                         ::testing::Values(Key{keycode::Down, 0, true}, Key{keycode::Up, shift::Ctrl, true},
                                           Key{keycode::Left, shift::Alt, true}, Key{keycode::Right, shift::Shift, true},
                                           Key{keycode::F4, 0, true}, Key{keycode::Enter, 0, false}));

TEST_F(ComboHarness, AReleaseAfterAPressOnTheFieldOrTheAccessKeyOpensIt) {
  CancelIn = "BeforeDropDown";
  surface.MouseUp(5, 5);
  EXPECT_TRUE(Log.empty());
  surface.MouseDown(5, 5, mouse::Right);
  surface.MouseUp(500, 5, mouse::Right);
  surface.MouseUp(5, 5);
  surface.DoubleClick();
  combo->UserControl_AccessKeyPress('I');
  EXPECT_EQ(Log, (Lines{"BeforeDropDown", "DblClick", "BeforeDropDown"}));
}

TEST_F(ComboHarness, DestroyedControlLeavesTheRelaySurfaceAndSiteFree) {
  combo->AboutBox();
  EXPECT_EQ(host.Windows.AboutBoxOwners, std::vector<WindowHandle>{site.hWnd()});
  const auto relay = combo->EventPass();
  combo.reset();
  EXPECT_EQ(std::tuple(relay->Listener(), surface.Listener(), site.Control()),
            std::tuple(nullptr, nullptr, nullptr));
}

}  // namespace
}  // namespace lumo
