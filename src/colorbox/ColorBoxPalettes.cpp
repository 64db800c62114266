#include "colorbox/ColorBoxPalettes.h"

#include <array>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "colormodel/CColorboxCol.h"
#include "colormodel/CColorboxEl.h"
#include "colormodel/CellFace.h"
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

using Faces = std::vector<CellFace>;

void Append(Faces& faces, const char* name, OLE_COLOR color) {
  faces.push_back(CellFace{name, color});
}

void AppendAll(Faces& faces, std::span<const NamedColor> colors) {
  for (const NamedColor& c : colors) Append(faces, c.name, FromRedFirst(c.rrggbb));
}

// A listed table of named colours, with the grey row after it for the "WithBW" variants.
Faces Listed(std::span<const NamedColor> colors, bool withBW) {
  Faces faces;
  AppendAll(faces, colors);
  if (withBW) AppendAll(faces, kGreyRow);
  return faces;
}

Faces Standard16(bool withBW) { return Listed(kStandard16, withBW); }

Faces GreyScale256() {
  Faces faces;
  for (std::int32_t v = 0; v <= 255; ++v) Append(faces, "", RGB(v, v, v));
  return faces;
}

// Sixteen steps of 16 stop at F0F0F0: white is not part of this ramp.
Faces GreyScale16() {
  Faces faces;
  for (std::int32_t v = 0; v <= 255; v += 16) Append(faces, "", RGB(v, v, v));
  return faces;
}

Faces Palette256(bool withBW) {
  Faces faces;
  for (std::int32_t cell = 0; cell < kCubeCells; ++cell) Append(faces, CubeName(cell), CubeColor(CubeEntryOfCell(cell)));
  for (std::int32_t i = 0; i < kBlackTail; ++i) Append(faces, "Black", 0);
  if (withBW) AppendAll(faces, kGreyRow);
  return faces;
}

Faces Palette48(bool withBW) { return Listed(kPalette48, withBW); }

Faces Palette40() {
  Faces faces;
  for (std::uint32_t rrggbb : kPalette40) Append(faces, "", FromRedFirst(rrggbb));
  return faces;
}

// One component ramp (0 to 255) in one of the three primaries: 16 steps of 16, or all 256.
Faces Ramp(std::int32_t count, std::int32_t componentShift) {
  Faces faces;
  const std::int32_t step = count == 16 ? 16 : 1;
  for (std::int32_t v = 0; v <= 255; v = checked::Add(v, step)) Append(faces, "", v << componentShift);
  return faces;
}

// A grid shows every unnamed cell under its colour's name, so the shared faces carry it.
FaceTable Named(Faces faces, const CommonGlobals& errors) {
  for (CellFace& face : faces) {
    if (!face.Name.empty()) continue;
    CColorboxEl unnamed(errors);
    unnamed.SetColor(face.Color);
    face.Name = ColorBoxPalettes::DefaultName(unnamed);
  }
  return std::make_shared<const Faces>(std::move(faces));
}

// The faces of one palette, built on first use and shared by every grid since.
template <auto Build, auto... Args>
const FaceTable& Shared(const CommonGlobals& errors) {
  static const FaceTable faces = Named(Build(Args...), errors);
  return faces;
}

// A palette and the two layout facts that come with it. The marker is written only by
// the three variants with a grey row (";" row ";": a gap above that zero-based row).
struct Palette {
  std::int32_t style;
  const char* procedure;
  std::int32_t columns;
  const char* marker;  // null: the marker stays as it was
  const FaceTable& (*faces)(const CommonGlobals&);
};

constexpr Palette kPalettes[] = {
    {cpsStandard, "LoadStandard16", 8, nullptr, Shared<Standard16, false>},
    {cpsStandardWithBW, "LoadStandard16", 8, ";2;", Shared<Standard16, true>},
    {cpsGreyScale16, "LoadGreyScale16", 8, nullptr, Shared<GreyScale16>},
    {cpsGreyScale256, "LoadGreyScale256", 16, nullptr, Shared<GreyScale256>},
    {cpsPalette48, "LoadPalette48", 8, nullptr, Shared<Palette48, false>},
    {cpsPalette48WithBW, "LoadPalette48", 8, ";6;", Shared<Palette48, true>},
    {cpsPalette256, "LoadPalette256", 16, nullptr, Shared<Palette256, false>},
    {cpsPalette256WithBW, "LoadPalette256", 16, ";16;", Shared<Palette256, true>},
    {cpsPaletteRed256, "LoadPaletteRed", 16, nullptr, Shared<Ramp, 256, 0>},
    {cpsPaletteGreen256, "LoadPaletteGreen", 16, nullptr, Shared<Ramp, 256, 8>},
    {cpsPaletteBlue256, "LoadPaletteBlue", 16, nullptr, Shared<Ramp, 256, 16>},
    {cpsPaletteRed16, "LoadPaletteRed", 8, nullptr, Shared<Ramp, 16, 0>},
    {cpsPaletteGreen16, "LoadPaletteGreen", 8, nullptr, Shared<Ramp, 16, 8>},
    {cpsPaletteBlue16, "LoadPaletteBlue", 8, nullptr, Shared<Ramp, 16, 16>},
    {cpsPalette40, "LoadPalette40", 8, nullptr, Shared<Palette40>},
};

}  // namespace

std::string ColorBoxPalettes::DefaultName(const CColorboxEl& cell) {
  return cell.GetColorStringHex() + " (" + cell.GetColorString() + ")";
}

bool ColorBoxPalettes::Load(std::int32_t style, CColorboxCol& cells) {
  for (const Palette& palette : kPalettes) {
    if (palette.style != style) continue;
    errors_.Trap(kModule, palette.procedure, [&] {
      const FaceTable& faces = palette.faces(errors_);
      cells.Clear();
      cells.AddAll(faces);
      if (palette.marker != nullptr) marker_ = palette.marker;
      columns_ = palette.columns;
    });
    return true;
  }
  return false;
}

}  // namespace lumo
