#pragma once

#include <cstdint>
#include <vector>

#include "colormodel/Geometry.h"

namespace LumoColorCombo::host {

// One line of a three-dimensional edge: drawn from `From`, leaving out `To`, one pixel
// wide, in the system colour with index `SystemColorIndex`.
struct EdgeStroke {
  lumo::Point From;
  lumo::Point To;
  int SystemColorIndex = 0;
  friend bool operator==(const EdgeStroke&, const EdgeStroke&) = default;
};

// The lines that make up a DrawEdge, in drawing order (later lines win the corners).
//
// An edge is up to two one-pixel rings: the outer ring on the rectangle's boundary
// (columns left and right - 1, rows top and bottom - 1) and the inner ring one pixel
// inside it. Each ring has a top-left colour and a bottom-right colour; the
// bottom-right lines are drawn after the top-left ones, so the top-right and
// bottom-left corner pixels take the bottom-right colour. The colours, by system
// colour index (16 button shadow, 20 button highlight, 21 3-D dark shadow,
// 22 3-D light), chosen so a bevel keeps its light-to-dark order in every theme:
//
//   border                     top-left   bottom-right
//   raised outer (1)               22          21
//   sunken outer (2)               16          20
//   raised inner (4)               20          16
//   sunken inner (8)               21          22
//
// So EDGE_RAISED (5) is 22/21 outside and 20/16 inside, EDGE_SUNKEN (10) is 16/20
// outside and 21/22 inside. A lone inner border (4 or 8) is not indented: it is drawn
// as the outer ring, in its own colours, and a lone outer border (1 or 2) is likewise
// a single ring; either is one pixel wide. Contradictory pairs draw nothing: both
// outer bits (3) suppress the whole edge, both inner bits (12) only the inner ring.
//
// The flags choose the sides (1 left, 2 top, 4 right, 8 bottom; 15 all). Where two
// chosen sides meet, the inner ring's lines are shortened by a pixel so they do not
// run over the outer ring's corner. The soft, flat, mono, middle-fill and adjust flags
// are not drawn; the controls do not use them.
class EdgeStrokes {
 public:
  static std::vector<EdgeStroke> of(const lumo::Rect& rect, std::int32_t edgeKind, std::int32_t flags);

 private:
  struct Ring {
    int TopLeft = -1;  // -1: the ring is not drawn
    int BottomRight = -1;
  };
  static void ringsOf(std::int32_t edgeKind, Ring& outer, Ring& inner);
  static void addOuter(std::vector<EdgeStroke>& strokes, const lumo::Rect& r, std::int32_t flags, const Ring& ring);
  static void addInner(std::vector<EdgeStroke>& strokes, const lumo::Rect& r, std::int32_t flags, const Ring& ring);
};

}  // namespace LumoColorCombo::host
