#include "colormodel/DrawingSurface.h"

namespace lumo {

void DrawingSurface::SetBackColor(OLE_COLOR color) {
  backColor_ = color;
  ClearSurface();
}

void DrawingSurface::SetFont(const StdFont& font) {
  font_ = font;
  FontChanged();
}

void DrawingSurface::Print(const std::string& text) {
  DrawPrintedText(currentX_, currentY_, text);
  currentY_ += TextHeight(text);
  currentX_ = 0;
}

void DrawingSurface::Cls() {
  currentX_ = 0;
  currentY_ = 0;
  ClearSurface();
}

void DrawingSurface::SetToolTipText(const std::string& text) {
  toolTipText_ = text;
  ToolTipChanged();
}

void DrawingSurface::PaintPicture(const Picture& picture, std::int32_t x, std::int32_t y) {
  const OLE_COLOR pen = foreColor_;
  const std::int32_t width = drawWidth_;
  drawWidth_ = 1;
  const auto& pixels = picture.Opaque;
  for (std::size_t start = 0; start < pixels.size();) {
    // A run: neighbours on one row in one colour. The line's end point is not drawn,
    // so it ends one pixel past the run.
    std::size_t end = start + 1;
    while (end < pixels.size() && pixels[end].Y == pixels[start].Y && pixels[end].Color == pixels[start].Color &&
           pixels[end].X == pixels[end - 1].X + 1) {
      ++end;
    }
    foreColor_ = pixels[start].Color;
    const std::int32_t row = y + pixels[start].Y;
    DrawLine({x + pixels[start].X, row}, {x + pixels[end - 1].X + 1, row});
    start = end;
  }
  foreColor_ = pen;
  drawWidth_ = width;
}

void DrawingSurface::LineTo(std::int32_t x, std::int32_t y) {
  const Point from = penPosition_;
  penPosition_ = {x, y};
  DrawLine(from, penPosition_);
}

}  // namespace lumo
