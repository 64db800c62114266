#include "support/RecordingSurface.h"

#include <algorithm>

#include "colormodel/CheckedMath.h"

namespace lumo::testing {
namespace {

WindowHandle NextHandle() {
  static WindowHandle next = 0x1000;
  return next += 0x10;
}

}  // namespace

RecordingSurface::RecordingSurface(std::int32_t widthPixels, std::int32_t heightPixels)
    : handle_(NextHandle()), width_(widthPixels), height_(heightPixels) {}

SurfaceCall& RecordingSurface::Record(std::string op, std::vector<std::int32_t> args, std::string text) {
  Calls.push_back({std::move(op), std::move(args), std::move(text), ForeColor(), FillColor(), BackColor(),
                   FillStyle(), DrawWidth()});
  return Calls.back();
}

void RecordingSurface::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  width_ = checked::Round(width / static_cast<double>(TwipsPerPixel));
  height_ = checked::Round(height / static_cast<double>(TwipsPerPixel));
  Record("Move", {left, top, width, height});
}

double RecordingSurface::TextWidth(const std::string& text) const {
  return CharWidth * static_cast<double>(text.size());
}

double RecordingSurface::TextHeight(const std::string& text) const {
  const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
  return LineHeight * static_cast<double>(lines);
}

void RecordingSurface::PaintPicture(const DrawingSurface& source, std::int32_t x, std::int32_t y) {
  Record("PaintPicture", {static_cast<std::int32_t>(source.hWnd()), x, y});
}

void RecordingSurface::Refresh() { Record("Refresh", {}); }

void RecordingSurface::Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
  Record("Rectangle", {left, top, right, bottom});
}

void RecordingSurface::Polygon(const std::vector<Point>& points) {
  std::vector<std::int32_t> args;
  for (const Point& p : points) {
    args.push_back(p.X);
    args.push_back(p.Y);
  }
  Record("Polygon", std::move(args));
}

void RecordingSurface::DrawEdge(const Rect& rect, std::int32_t edgeKind, std::int32_t flags) {
  Record("DrawEdge", {rect.Left, rect.Top, rect.Right, rect.Bottom, edgeKind, flags});
}

void RecordingSurface::DrawFocusRect(const Rect& rect) {
  Record("DrawFocusRect", {rect.Left, rect.Top, rect.Right, rect.Bottom});
}

void RecordingSurface::DrawTextA(const std::string& text, const Rect& rect, std::int32_t format) {
  Record("DrawTextA", {rect.Left, rect.Top, rect.Right, rect.Bottom, format}, text);
}

void RecordingSurface::ClearSurface() { Record("Cls", {}); }

void RecordingSurface::DrawLine(Point from, Point to) { Record("Line", {from.X, from.Y, to.X, to.Y}); }

void RecordingSurface::DrawPrintedText(double x, double y, const std::string& text) {
  Record("Print", {static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)}, text);
}

std::vector<SurfaceCall> RecordingSurface::CallsOf(const std::string& op) const {
  std::vector<SurfaceCall> found;
  std::copy_if(Calls.begin(), Calls.end(), std::back_inserter(found),
               [&](const SurfaceCall& call) { return call.Op == op; });
  return found;
}

std::int32_t RecordingSurface::CountOf(const std::string& op) const {
  return static_cast<std::int32_t>(
      std::count_if(Calls.begin(), Calls.end(), [&](const SurfaceCall& call) { return call.Op == op; }));
}

void RecordingSurface::MouseDown(double x, double y, std::int16_t button, std::int16_t shift) {
  if (Listener() != nullptr) Listener()->MouseDown(button, shift, x, y);
}

void RecordingSurface::MouseMove(double x, double y, std::int16_t button, std::int16_t shift) {
  if (Listener() != nullptr) Listener()->MouseMove(button, shift, x, y);
}

void RecordingSurface::MouseUp(double x, double y, std::int16_t button, std::int16_t shift) {
  if (Listener() != nullptr) Listener()->MouseUp(button, shift, x, y);
}

void RecordingSurface::Click(double x, double y) {
  MouseDown(x, y);
  MouseUp(x, y);
}

void RecordingSurface::DoubleClick() {
  if (Listener() != nullptr) Listener()->DblClick();
}

void RecordingSurface::Key(std::int16_t keyCode, std::int16_t shift) {
  if (Listener() != nullptr) Listener()->KeyDown(keyCode, shift);
}

void RecordingSurface::LoseFocus() {
  if (Listener() != nullptr) Listener()->LostFocus();
}

}  // namespace lumo::testing
