#include "colorcombo/ComboPainter.h"

#include "colormodel/CheckedMath.h"
#include "colormodel/DrawingSurface.h"

namespace lumo {
namespace {

inline constexpr OLE_COLOR kLight = SystemColor(22);       // &H80000016, 3-D light
inline constexpr OLE_COLOR kDarkShadow = SystemColor(21);  // &H80000015, 3-D dark shadow

Picture MakeArrow() {
  Picture arrow{ComboPainter::ArrowSize, ComboPainter::ArrowSize, {}};
  // Row y runs from x = y to x = 4 - y: five, three and one black pixels.
  for (std::int32_t y = 0; y < 3; ++y) {
    for (std::int32_t x = y; x <= 4 - y; ++x) arrow.Opaque.push_back({x, y, 0});
  }
  return arrow;
}

}  // namespace

const Picture& ComboPainter::Arrow() {
  static const Picture arrow = MakeArrow();
  return arrow;
}

void ComboPainter::DropButton(const Rect& button, bool pressed, bool separator) {
  surface_.SetForeColor(kLight);
  surface_.SetFillColor(kLight);
  surface_.SetFillStyle(fill::Solid);
  surface_.Rectangle(button.Left, button.Top, button.Right, button.Bottom);
  if (separator) {
    // An etched line between the colour bar and the button: shadow, then highlight.
    const std::int32_t x = checked::Sub(button.Left, 1);
    Line(sys::ButtonShadow, x, button.Top, x, button.Bottom);
    Line(sys::ButtonHighlight, button.Left, button.Top, button.Left, button.Bottom);
  }
  surface_.DrawEdge(button, pressed ? edge::Sunken : edge::Raised, edge::AllSides);
  // Centred, the halves truncating toward zero: a button narrower than the icon
  // starts it left of the button.
  const std::int32_t left =
      checked::Add(button.Left, checked::Div(checked::Sub(checked::Sub(button.Right, button.Left), ArrowSize), 2));
  const std::int32_t top =
      checked::Add(button.Top, checked::Div(checked::Sub(checked::Sub(button.Bottom, button.Top), ArrowSize), 2));
  surface_.PaintPicture(Arrow(), left, top);
}

void ComboPainter::RaisedEdge() {
  surface_.DrawEdge({0, 0, surface_.ScaleWidth(), surface_.ScaleHeight()}, edge::Raised, edge::AllSides);
}

void ComboPainter::SunkenField(std::int32_t width, std::int32_t height) {
  FourPairs(width, height, sys::ButtonShadow, kDarkShadow, sys::ButtonHighlight, kLight);
}

void ComboPainter::RaisedButton(std::int32_t width, std::int32_t height) {
  FourPairs(width, height, sys::ButtonHighlight, kLight, sys::ButtonShadow, kDarkShadow);
}

void ComboPainter::FourPairs(std::int32_t w, std::int32_t h, OLE_COLOR outerTopLeft, OLE_COLOR innerTopLeft,
                             OLE_COLOR outerBottomRight, OLE_COLOR innerBottomRight) {
  using checked::Sub;
  Line(outerTopLeft, 0, 0, w, 0);
  Line(outerTopLeft, 0, 0, 0, h);
  Line(innerTopLeft, 1, 1, Sub(w, 1), 1);
  Line(innerTopLeft, 1, 1, 1, Sub(h, 2));
  Line(outerBottomRight, 0, Sub(h, 1), Sub(w, 1), Sub(h, 1));
  Line(outerBottomRight, Sub(w, 1), 0, Sub(w, 1), Sub(h, 1));
  // The inner bottom line runs to the inner right line, which stops above it.
  Line(innerBottomRight, 1, Sub(h, 2), Sub(w, 1), Sub(h, 2));
  Line(innerBottomRight, Sub(w, 2), 1, Sub(w, 2), Sub(h, 2));
}

void ComboPainter::Line(OLE_COLOR pen, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
  surface_.SetForeColor(pen);
  surface_.MoveToEx(x1, y1);
  surface_.LineTo(x2, y2);
}

void ComboPainter::Bar(const ColorBar& look) {
  surface_.SetForeColor(look.back);
  surface_.SetFillColor(look.back);
  surface_.SetFillStyle(fill::Solid);
  surface_.Rectangle(look.bar.Left, look.bar.Top, look.bar.Right, look.bar.Bottom);
  surface_.SetFillStyle(fill::Transparent);
  if (look.boxed) {
    surface_.SetForeColor(sys::HighlightText);
    surface_.SetFillColor(look.swatchColor);
    surface_.SetFillStyle(fill::Solid);
    surface_.Rectangle(look.swatch.Left, look.swatch.Top, look.swatch.Right, look.swatch.Bottom);
    surface_.SetFillStyle(fill::Transparent);
  }
  if (!look.text.empty()) {
    surface_.SetForeColor(look.textColor);
    const Rect area{checked::Add(look.swatch.Right, 4), look.bar.Top, look.bar.Right, look.bar.Bottom};
    surface_.DrawTextA(look.text, area, textformat::LeftTop);
  }
  if (look.focus) {
    surface_.DrawFocusRect({4, 2, checked::Add(look.bar.Right, 4), checked::Add(look.bar.Bottom, 2)});
  }
}

}  // namespace lumo
