#pragma once

#include <algorithm>
#include <iterator>
#include <cstdint>
#include <string>
#include <vector>

#include "colormodel/CheckedMath.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/SurfaceEvents.h"

namespace lumo::testing {

// One drawing call, with the surface state it was drawn with.
struct SurfaceCall {
  std::string Op;  // "Rectangle", "Polygon", "Line", "DrawEdge", "DrawFocusRect", "DrawTextA",
                   // "Cls", "Print", "PaintPicture", "Refresh", "Move"
  std::vector<std::int32_t> Args;
  std::string Text;
  OLE_COLOR ForeColor = 0;
  OLE_COLOR FillColor = 0;
  OLE_COLOR BackColor = 0;
  std::int32_t FillStyle = 0;
  std::int32_t DrawWidth = 0;
};

// A headless picScreen that records every call with its arguments. Text metrics are
// fixed (CharWidth per character, LineHeight per line) so layouts are predictable.
class RecordingSurface : public DrawingSurface {
 public:
  explicit RecordingSurface(std::int32_t widthPixels = 200, std::int32_t heightPixels = 200)
      : width_(widthPixels), height_(heightPixels) {}

  WindowHandle hWnd() const override { return handle_; }
  std::int32_t ScaleWidth() const override { return width_; }
  std::int32_t ScaleHeight() const override { return height_; }
  void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) override {
    width_ = checked::Round(width / static_cast<double>(TwipsPerPixel));
    height_ = checked::Round(height / static_cast<double>(TwipsPerPixel));
    Record("Move", {left, top, width, height});
  }
  double TextWidth(const std::string& text) const override { return CharWidth * static_cast<double>(text.size()); }
  double TextHeight(const std::string& text) const override {
    return LineHeight * static_cast<double>(1 + std::count(text.begin(), text.end(), '\n'));
  }
  void PaintPicture(const DrawingSurface& source, std::int32_t x, std::int32_t y) override {
    Record("PaintPicture", {static_cast<std::int32_t>(source.hWnd()), x, y});
  }
  void Refresh() override { Record("Refresh", {}); }
  void Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) override {
    Record("Rectangle", {left, top, right, bottom});
  }
  void Polygon(const std::vector<Point>& points) override {
    std::vector<std::int32_t> args;
    for (const Point& p : points) args.insert(args.end(), {p.X, p.Y});
    Record("Polygon", std::move(args));
  }
  void DrawEdge(const Rect& r, std::int32_t edgeKind, std::int32_t flags) override {
    Record("DrawEdge", {r.Left, r.Top, r.Right, r.Bottom, edgeKind, flags});
  }
  void DrawFocusRect(const Rect& r) override { Record("DrawFocusRect", {r.Left, r.Top, r.Right, r.Bottom}); }
  void DrawTextA(const std::string& text, const Rect& r, std::int32_t format) override {
    Record("DrawTextA", {r.Left, r.Top, r.Right, r.Bottom, format}, text);
  }

  // --- for tests ---
  std::vector<SurfaceCall> Calls;
  std::vector<std::string> ToolTipAssignments;
  double CharWidth = 6.0;
  double LineHeight = 13.0;
  void ClearCalls() { Calls.clear(); }
  std::vector<SurfaceCall> CallsOf(const std::string& op) const {
    std::vector<SurfaceCall> found;
    std::copy_if(Calls.begin(), Calls.end(), std::back_inserter(found), [&](const auto& c) { return c.Op == op; });
    return found;
  }
  std::int32_t CountOf(const std::string& op) const { return static_cast<std::int32_t>(CallsOf(op).size()); }
  // Input, delivered to the listener (when there is one) as the host would.
  void MouseDown(double x, double y, std::int16_t button = 1, std::int16_t shift = 0) {
    if (Listener() != nullptr) Listener()->MouseDown(button, shift, x, y);
  }
  void MouseMove(double x, double y, std::int16_t button = 0, std::int16_t shift = 0) {
    if (Listener() != nullptr) Listener()->MouseMove(button, shift, x, y);
  }
  void MouseUp(double x, double y, std::int16_t button = 1, std::int16_t shift = 0) {
    if (Listener() != nullptr) Listener()->MouseUp(button, shift, x, y);
  }
  // Press and release at one point.
  void Click(double x, double y) {
    MouseDown(x, y);
    MouseUp(x, y);
  }
  void DoubleClick() {
    if (Listener() != nullptr) Listener()->DblClick();
  }
  void Key(std::int16_t keyCode, std::int16_t shift = 0) {
    if (Listener() != nullptr) Listener()->KeyDown(keyCode, shift);
  }
  void LoseFocus() {
    if (Listener() != nullptr) Listener()->LostFocus();
  }

 protected:
  void ClearSurface() override { Record("Cls", {}); }
  void DrawLine(Point from, Point to) override { Record("Line", {from.X, from.Y, to.X, to.Y}); }
  void DrawPrintedText(double x, double y, const std::string& text) override {
    Record("Print", {static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)}, text);
  }
  void ToolTipChanged() override { ToolTipAssignments.push_back(ToolTipText()); }

 private:
  void Record(std::string op, std::vector<std::int32_t> args, std::string text = {}) {
    Calls.push_back({std::move(op), std::move(args), std::move(text), ForeColor(), FillColor(), BackColor(),
                     FillStyle(), DrawWidth()});
  }

  // Every surface gets a handle of its own, as windows do.
  static inline WindowHandle nextHandle_ = 0x1000;
  WindowHandle handle_ = nextHandle_ += 0x10;
  std::int32_t width_;
  std::int32_t height_;
};

}  // namespace lumo::testing
