#pragma once

#include <cstdint>

namespace lumo {

struct Point {
  std::int32_t X = 0;
  std::int32_t Y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

// A rectangle the platform's way: Right and Bottom lie just outside for GDI calls.
struct Rect {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;
  friend bool operator==(const Rect&, const Rect&) = default;
};

// DrawEdge's edge and border flags, by the platform's values.
namespace edge {
inline constexpr std::int32_t RaisedOuter = 0x1;  // BDR_RAISEDOUTER
inline constexpr std::int32_t SunkenOuter = 0x2;  // BDR_SUNKENOUTER
inline constexpr std::int32_t RaisedInner = 0x4;  // BDR_RAISEDINNER
inline constexpr std::int32_t SunkenInner = 0x8;  // BDR_SUNKENINNER
inline constexpr std::int32_t Raised = RaisedOuter | RaisedInner;  // EDGE_RAISED, 5
inline constexpr std::int32_t Sunken = SunkenOuter | SunkenInner;  // EDGE_SUNKEN, 10
inline constexpr std::int32_t AllSides = 0xF;                      // BF_RECT, 15
}  // namespace edge

// DrawTextA's format flags that the controls use.
namespace textformat {
inline constexpr std::int32_t LeftTop = 0;  // DT_LEFT | DT_TOP
inline constexpr std::int32_t Center = 1;   // DT_CENTER
}  // namespace textformat

// A surface's fill style.
namespace fill {
inline constexpr std::int32_t Solid = 0;
inline constexpr std::int32_t Transparent = 1;
}  // namespace fill

}  // namespace lumo
