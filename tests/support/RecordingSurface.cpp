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

void RecordingSurface::Polygon(const std::vector<Point>& points) {
  std::vector<std::int32_t> args;
  for (const Point& p : points) {
    args.push_back(p.X);
    args.push_back(p.Y);
  }
  Record("Polygon", std::move(args));
}

std::vector<SurfaceCall> RecordingSurface::CallsOf(const std::string& op) const {
  std::vector<SurfaceCall> found;
  std::copy_if(Calls.begin(), Calls.end(), std::back_inserter(found),
               [&](const SurfaceCall& call) { return call.Op == op; });
  return found;
}

}  // namespace lumo::testing
