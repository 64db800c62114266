#pragma once

#include <cstdint>

namespace lumo {

// A colour travels as the platform's OLE colour: red + 256 * green + 65536 * blue,
// or, with the top bit set, a reference to an entry of the system colour table.
using OLE_COLOR = std::int32_t;

// An opaque window identity. 0 is "no window".
using WindowHandle = std::uintptr_t;

// Twips per pixel. Fixed: sizes handed to the host are in twips at this ratio.
inline constexpr std::int32_t TwipsPerPixel = 15;

// Builds a system colour reference (&H80000000 + index).
constexpr OLE_COLOR SystemColor(std::int32_t index) {
  return static_cast<OLE_COLOR>(0x80000000u | static_cast<std::uint32_t>(index));
}

constexpr bool IsSystemColor(OLE_COLOR color) { return color < 0; }

constexpr std::int32_t SystemColorIndex(OLE_COLOR color) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(color) & 0x00FFFFFFu);
}

// The system colours that the controls draw with.
namespace sys {
inline constexpr OLE_COLOR ButtonFace = SystemColor(15);       // &H8000000F
inline constexpr OLE_COLOR ButtonShadow = SystemColor(16);     // &H80000010
inline constexpr OLE_COLOR GrayText = SystemColor(17);         // &H80000011
inline constexpr OLE_COLOR ButtonText = SystemColor(18);       // &H80000012
inline constexpr OLE_COLOR ButtonHighlight = SystemColor(20);  // &H80000014
inline constexpr OLE_COLOR HighlightText = SystemColor(14);    // &H8000000E
}  // namespace sys

// Builds a colour from its components, the platform's way.
constexpr OLE_COLOR RGB(std::int32_t red, std::int32_t green, std::int32_t blue) {
  return red + 256 * green + 65536 * blue;
}

// A colour written red first, as people read it (0xFF8000 is orange), as a colour value.
constexpr OLE_COLOR FromRedFirst(std::uint32_t rrggbb) {
  return RGB(static_cast<std::int32_t>((rrggbb >> 16) & 0xFFu), static_cast<std::int32_t>((rrggbb >> 8) & 0xFFu),
             static_cast<std::int32_t>(rrggbb & 0xFFu));
}

}  // namespace lumo
