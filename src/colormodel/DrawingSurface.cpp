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

void DrawingSurface::LineTo(std::int32_t x, std::int32_t y) {
  const Point from = penPosition_;
  penPosition_ = {x, y};
  DrawLine(from, penPosition_);
}

}  // namespace lumo
