#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "colormodel/DrawingSurface.h"

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
  explicit RecordingSurface(std::int32_t widthPixels = 200, std::int32_t heightPixels = 200);

  WindowHandle hWnd() const override { return handle_; }
  std::int32_t ScaleWidth() const override { return width_; }
  std::int32_t ScaleHeight() const override { return height_; }
  void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) override;
  double TextWidth(const std::string& text) const override;
  double TextHeight(const std::string& text) const override;
  void PaintPicture(const DrawingSurface& source, std::int32_t x, std::int32_t y) override;
  void Refresh() override;
  void Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) override;
  void Polygon(const std::vector<Point>& points) override;
  void DrawEdge(const Rect& rect, std::int32_t edgeKind, std::int32_t flags) override;
  void DrawFocusRect(const Rect& rect) override;
  void DrawTextA(const std::string& text, const Rect& rect, std::int32_t format) override;

  // --- for tests ---
  std::vector<SurfaceCall> Calls;
  std::vector<std::string> ToolTipAssignments;
  double CharWidth = 6.0;
  double LineHeight = 13.0;
  void ClearCalls() { Calls.clear(); }
  std::vector<SurfaceCall> CallsOf(const std::string& op) const;
  std::int32_t CountOf(const std::string& op) const;
  // Input, delivered to the listener as the host would.
  void MouseDown(double x, double y, std::int16_t button = 1, std::int16_t shift = 0);
  void MouseMove(double x, double y, std::int16_t button = 0, std::int16_t shift = 0);
  void MouseUp(double x, double y, std::int16_t button = 1, std::int16_t shift = 0);
  void Click(double x, double y);  // press and release at one point
  void DoubleClick();
  void Key(std::int16_t keyCode, std::int16_t shift = 0);
  void LoseFocus();

 protected:
  void ClearSurface() override;
  void DrawLine(Point from, Point to) override;
  void DrawPrintedText(double x, double y, const std::string& text) override;
  void ToolTipChanged() override { ToolTipAssignments.push_back(ToolTipText()); }

 private:
  SurfaceCall& Record(std::string op, std::vector<std::int32_t> args, std::string text = {});

  WindowHandle handle_;
  std::int32_t width_;
  std::int32_t height_;
};

}  // namespace lumo::testing
