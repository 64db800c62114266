#include "colorbox/ColorBoxPalettes.h"

#include <array>
#include <span>

#include "colormodel/CColorboxCol.h"
#include "colormodel/CheckedMath.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/Enums.h"

namespace lumo {
namespace {

constexpr const char* kModule = "ColorBox";

struct NamedColor {
  std::uint32_t rrggbb;  // written the way people read colours: red, green, blue
  const char* name;
};

// The tables below are written red-green-blue; a colour value is stored blue-green-red.

// "Fushia" is the spelling every ColorBox palette uses; kept on purpose: hosts rely on
// the names a Click reports.
constexpr std::array<NamedColor, 16> kStandard16{{
    {0x000000, "Black"}, {0xFFFFFF, "White"}, {0x008200, "Green"},  {0x840000, "Maroon"},
    {0x828400, "Olive"}, {0x000084, "Navy"},  {0x840084, "Purple"}, {0x848284, "Gray"},
    {0xFFFF00, "Yellow"}, {0x00FF00, "Lime"}, {0x00FFFF, "Aqua"},   {0xFF00FF, "Fushia"},
    {0xC6C3C6, "Silver"}, {0xFF0000, "Red"},  {0x0000FF, "Blue"},   {0x007F7F, "Teal"},
}};

constexpr std::array<NamedColor, 16> kGreyRow{{
    {0xFFFFFF, "White"}, {0xEFEFEF, ""}, {0xDEDFDE, ""}, {0xCECFCE, ""},
    {0xBDBEBD, ""},      {0xADAEAD, ""}, {0x9C9E9C, ""}, {0x8C8E8C, ""},
    {0x7B7D7B, ""},      {0x6B6D6B, ""}, {0x5A5D5A, ""}, {0x4A4D4A, ""},
    {0x393C39, ""},      {0x292C29, ""}, {0x181C18, ""}, {0x080C08, ""},
}};

// The web-like components (130, 132, 195, 198 ...) are the palette's own values.
constexpr std::array<NamedColor, 48> kPalette48{{
    {0xFFFFFF, "White"},  {0xC6C3FF, ""},     {0xC6E3FF, ""}, {0xC6FFFF, ""},
    {0xC6FFC6, ""},       {0xFFFFC6, ""},     {0xFFC3C6, ""}, {0xFFC3FF, ""},
    {0xE7E3E7, ""},       {0x8482FF, ""},     {0x84C3FF, ""}, {0x84FFFF, ""},
    {0x84FF84, ""},       {0xFFFF84, ""},     {0xFF8284, ""}, {0xFF82FF, ""},
    {0xC6C3C6, "Silver"}, {0x0000FF, "Blue"}, {0x0082FF, ""}, {0x00FFFF, "Aqua"},
    {0x00FF00, "Lime"},   {0xFFFF00, "Yellow"}, {0xFF0000, "Red"}, {0xFF00FF, "Fushia"},
    {0x848284, "Gray"},   {0x0000C6, ""},     {0x0041C6, ""}, {0x00C3C6, ""},
    {0x00C300, ""},       {0xC6C300, ""},     {0xC60000, ""}, {0xC600C6, ""},
    {0x424142, ""},       {0x000084, "Navy"}, {0x004184, ""}, {0x008284, ""},
    {0x008200, "Green"},  {0x848200, ""},     {0x840000, "Maroon"}, {0x840084, "Purple"},
    {0x000000, "Black"},  {0x000042, ""},     {0x424184, ""}, {0x004142, ""},
    {0x004100, ""},       {0x424100, ""},     {0x420000, ""}, {0x420042, ""},
}};

constexpr std::array<std::uint32_t, 40> kPalette40{{
    0x000000, 0x003399, 0x003333, 0x003300, 0x663300, 0x800000, 0x993333, 0x333333,
    0x000080, 0x0066FF, 0x008080, 0x008000, 0x808000, 0xFF0000, 0x996666, 0x808080,
    0x0000FF, 0x0099FF, 0x00CC99, 0x669933, 0xCCCC33, 0xFF6633, 0x800080, 0x969696,
    0xFF00FF, 0x00CCFF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFFCC00, 0x663399, 0xC0C0C0,
    0xCC99FF, 0x99CCFF, 0x99FFFF, 0xCCFFCC, 0xFFFFCC, 0xFFCC99, 0xFF99CC, 0xFFFFFF,
}};

// The 6 x 6 x 6 cube behind the 256-colour palette. Green has levels of its own.
constexpr std::array<std::int32_t, 6> kRedBlueLevels{0x00, 0x31, 0x63, 0x9C, 0xCE, 0xFF};
constexpr std::array<std::int32_t, 6> kGreenLevels{0x00, 0x30, 0x65, 0x9A, 0xCF, 0xFF};
constexpr std::int32_t kCubeCells = 216;
constexpr std::int32_t kBlackTail = 40;

// Cube entries 144 ... 159 are skipped and 160 ... 175 fill their place, so grid rows
// 9 and 10 hold the same sixteen colours. That is the palette as designed.
constexpr std::int32_t CubeEntryOfCell(std::int32_t cell) {
  return cell >= 144 && cell < 160 ? cell + 16 : cell;
}

constexpr OLE_COLOR CubeColor(std::int32_t entry) {
  return RGB(kRedBlueLevels[static_cast<std::size_t>(entry % 6)], kGreenLevels[static_cast<std::size_t>(entry / 36)],
             kRedBlueLevels[static_cast<std::size_t>((entry / 6) % 6)]);
}

const char* CubeName(std::int32_t cell) {
  switch (cell) {
    case 0: return "Black";
    case 5: return "Red";
    case 30: return "Blue";
    case 35: return "Fushia";
    case 180: return "Lime";
    case 185: return "Yellow";
    case 210: return "Aqua";
    case 215: return "White";
    default: return "";
  }
}

void AddAll(CColorboxCol& cells, std::span<const NamedColor> colors) {
  for (const NamedColor& c : colors) cells.Add(c.name, FromRedFirst(c.rrggbb), 0, 0);
}

}  // namespace

bool ColorBoxPalettes::Load(std::int32_t style, CColorboxCol& cells) {
  switch (style) {
    case cpsStandard: LoadStandard16(cells, false); return true;
    case cpsStandardWithBW: LoadStandard16(cells, true); return true;
    case cpsGreyScale16: LoadGreyScale16(cells); return true;
    case cpsGreyScale256: LoadGreyScale256(cells); return true;
    case cpsPalette40: LoadPalette40(cells); return true;
    case cpsPalette48: LoadPalette48(cells, false); return true;
    case cpsPalette48WithBW: LoadPalette48(cells, true); return true;
    case cpsPalette256: LoadPalette256(cells, false); return true;
    case cpsPalette256WithBW: LoadPalette256(cells, true); return true;
    case cpsPaletteRed256: LoadPaletteRed(cells, 256); return true;
    case cpsPaletteGreen256: LoadPaletteGreen(cells, 256); return true;
    case cpsPaletteBlue256: LoadPaletteBlue(cells, 256); return true;
    case cpsPaletteRed16: LoadPaletteRed(cells, 16); return true;
    case cpsPaletteGreen16: LoadPaletteGreen(cells, 16); return true;
    case cpsPaletteBlue16: LoadPaletteBlue(cells, 16); return true;
    default: return false;
  }
}

void ColorBoxPalettes::AddGreyRow(CColorboxCol& cells, const char* marker) {
  AddAll(cells, kGreyRow);
  marker_ = marker;
}

void ColorBoxPalettes::LoadStandard16(CColorboxCol& cells, bool bWithBW) {
  errors_.Trap(kModule, "LoadStandard16", [&] {
    cells.Clear();
    AddAll(cells, kStandard16);
    if (bWithBW) AddGreyRow(cells, ";2;");
    columns_ = 8;
  });
}

void ColorBoxPalettes::LoadGreyScale256(CColorboxCol& cells) {
  errors_.Trap(kModule, "LoadGreyScale256", [&] {
    cells.Clear();
    for (std::int32_t v = 0; v <= 255; ++v) cells.Add("", RGB(v, v, v), 0, 0);
    columns_ = 16;
  });
}

void ColorBoxPalettes::LoadGreyScale16(CColorboxCol& cells) {
  errors_.Trap(kModule, "LoadGreyScale16", [&] {
    cells.Clear();
    // Sixteen steps of 16 stop at F0F0F0: white is not part of this ramp.
    for (std::int32_t v = 0; v <= 255; v += 16) cells.Add("", RGB(v, v, v), 0, 0);
    columns_ = 8;
  });
}

void ColorBoxPalettes::LoadPalette256(CColorboxCol& cells, bool bWithBW) {
  errors_.Trap(kModule, "LoadPalette256", [&] {
    cells.Clear();
    for (std::int32_t cell = 0; cell < kCubeCells; ++cell) {
      cells.Add(CubeName(cell), CubeColor(CubeEntryOfCell(cell)), 0, 0);
    }
    for (std::int32_t i = 0; i < kBlackTail; ++i) cells.Add("Black", 0, 0, 0);
    if (bWithBW) AddGreyRow(cells, ";16;");
    columns_ = 16;
  });
}

void ColorBoxPalettes::LoadPalette48(CColorboxCol& cells, bool bWithBW) {
  errors_.Trap(kModule, "LoadPalette48", [&] {
    cells.Clear();
    AddAll(cells, kPalette48);
    if (bWithBW) AddGreyRow(cells, ";6;");
    columns_ = 8;
  });
}

void ColorBoxPalettes::LoadPalette40(CColorboxCol& cells) {
  errors_.Trap(kModule, "LoadPalette40", [&] {
    cells.Clear();
    for (std::uint32_t rrggbb : kPalette40) cells.Add("", FromRedFirst(rrggbb), 0, 0);
    columns_ = 8;
  });
}

void ColorBoxPalettes::LoadPaletteBlue(CColorboxCol& cells, std::int32_t lCount) {
  errors_.Trap(kModule, "LoadPaletteBlue", [&] { LoadRamp(cells, lCount, 16); });
}

void ColorBoxPalettes::LoadPaletteGreen(CColorboxCol& cells, std::int32_t lCount) {
  errors_.Trap(kModule, "LoadPaletteGreen", [&] { LoadRamp(cells, lCount, 8); });
}

void ColorBoxPalettes::LoadPaletteRed(CColorboxCol& cells, std::int32_t lCount) {
  errors_.Trap(kModule, "LoadPaletteRed", [&] { LoadRamp(cells, lCount, 0); });
}

void ColorBoxPalettes::LoadRamp(CColorboxCol& cells, std::int32_t lCount, std::int32_t componentShift) {
  // Only 16 means the short ramp; any other count gives all 256 steps. Unlike the
  // other loaders, the ramps settle the column count before adding their cells.
  const std::int32_t step = lCount == 16 ? 16 : 1;
  columns_ = lCount == 16 ? 8 : 16;
  cells.Clear();
  for (std::int32_t v = 0; v <= 255; v = checked::Add(v, step)) {
    cells.Add("", v << componentShift, 0, 0);
  }
}

}  // namespace lumo
