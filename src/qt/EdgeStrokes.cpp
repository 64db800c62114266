#include "qt/EdgeStrokes.h"

#include <utility>

namespace LumoColorCombo::host {
namespace {

constexpr int kButtonShadow = 16;
constexpr int kButtonHighlight = 20;
constexpr int kDarkShadow = 21;
constexpr int kLight = 22;

constexpr std::int32_t kLeft = 0x1;
constexpr std::int32_t kTop = 0x2;
constexpr std::int32_t kRight = 0x4;
constexpr std::int32_t kBottom = 0x8;

bool Has(std::int32_t flags, std::int32_t side) { return (flags & side) != 0; }

}  // namespace

void EdgeStrokes::ringsOf(std::int32_t edgeKind, Ring& outer, Ring& inner) {
  const std::int32_t outerBits = edgeKind & 0x3;
  const std::int32_t innerBits = (edgeKind >> 2) & 0x3;
  outer = {};
  inner = {};
  if (outerBits == 0x3) return;
  if (outerBits == 0x1) outer = {kLight, kDarkShadow};
  if (outerBits == 0x2) outer = {kButtonShadow, kButtonHighlight};
  if (innerBits == 0x1) inner = {kButtonHighlight, kButtonShadow};
  if (innerBits == 0x2) inner = {kDarkShadow, kLight};
  if (outer.TopLeft < 0) std::swap(outer, inner);
}

void EdgeStrokes::addOuter(std::vector<EdgeStroke>& strokes, const lumo::Rect& r, std::int32_t flags,
                           const Ring& ring) {
  if (ring.TopLeft < 0) return;
  const auto [left, top, right, bottom] = r;
  if (Has(flags, kTop)) strokes.push_back({{left, top}, {right, top}, ring.TopLeft});
  if (Has(flags, kLeft)) strokes.push_back({{left, top}, {left, bottom}, ring.TopLeft});
  // Drawn from the bottom-right corner outwards, so that corner is this colour's too.
  if (Has(flags, kBottom)) strokes.push_back({{right - 1, bottom - 1}, {left - 1, bottom - 1}, ring.BottomRight});
  if (Has(flags, kRight)) strokes.push_back({{right - 1, bottom - 1}, {right - 1, top - 1}, ring.BottomRight});
}

void EdgeStrokes::addInner(std::vector<EdgeStroke>& strokes, const lumo::Rect& r, std::int32_t flags,
                           const Ring& ring) {
  if (ring.TopLeft < 0) return;
  const auto [left, top, right, bottom] = r;
  // One pixel shorter at each corner where two drawn sides meet.
  const int topLeft = Has(flags, kTop) && Has(flags, kLeft) ? 1 : 0;
  const int topRight = Has(flags, kTop) && Has(flags, kRight) ? 1 : 0;
  const int bottomLeft = Has(flags, kBottom) && Has(flags, kLeft) ? 1 : 0;
  const int bottomRight = Has(flags, kBottom) && Has(flags, kRight) ? 1 : 0;
  if (Has(flags, kTop)) strokes.push_back({{left + topLeft, top + 1}, {right - topRight, top + 1}, ring.TopLeft});
  if (Has(flags, kLeft))
    strokes.push_back({{left + 1, top + topLeft}, {left + 1, bottom - bottomLeft}, ring.TopLeft});
  if (Has(flags, kBottom))
    strokes.push_back(
        {{right - 1 - bottomRight, bottom - 2}, {left - 1 + bottomLeft, bottom - 2}, ring.BottomRight});
  if (Has(flags, kRight))
    strokes.push_back({{right - 2, bottom - 1 - bottomRight}, {right - 2, top - 1 + topRight}, ring.BottomRight});
}

std::vector<EdgeStroke> EdgeStrokes::of(const lumo::Rect& rect, std::int32_t edgeKind, std::int32_t flags) {
  Ring outer;
  Ring inner;
  ringsOf(edgeKind, outer, inner);
  std::vector<EdgeStroke> strokes;
  addOuter(strokes, rect, flags, outer);
  addInner(strokes, rect, flags, inner);
  return strokes;
}

}  // namespace LumoColorCombo::host
