#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "colormodel/Geometry.h"
#include "colormodel/Picture.h"
#include "colormodel/StdFont.h"
#include "colormodel/SurfaceEvents.h"
#include "colormodel/Types.h"

namespace lumo {

// `picScreen`: the child picture surface that covers a control and on which it draws.
// Coordinates are pixels of the surface; sizes given to Move are twips.
//
// The pen, brush, text position and tooltip are plain state kept here, identical for
// every host; implementations read it when they draw. Every drawing call honours the
// platform's pixel rules (see each call).
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  virtual WindowHandle hWnd() const = 0;

  // --- pen, brush and colours ----------------------------------------------------
  OLE_COLOR ForeColor() const { return foreColor_; }
  void SetForeColor(OLE_COLOR color) { foreColor_ = color; }
  OLE_COLOR BackColor() const { return backColor_; }
  // Setting the background repaints the whole surface with it.
  void SetBackColor(OLE_COLOR color);
  OLE_COLOR FillColor() const { return fillColor_; }
  void SetFillColor(OLE_COLOR color) { fillColor_ = color; }
  std::int32_t FillStyle() const { return fillStyle_; }
  void SetFillStyle(std::int32_t style) { fillStyle_ = style; }
  std::int32_t DrawWidth() const { return drawWidth_; }
  void SetDrawWidth(std::int32_t width) { drawWidth_ = width < 1 ? 1 : width; }

  // --- size ----------------------------------------------------------------------
  virtual std::int32_t ScaleWidth() const = 0;   // inner width, pixels
  virtual std::int32_t ScaleHeight() const = 0;  // inner height, pixels
  virtual std::int32_t Width() const { return ScaleWidth() * TwipsPerPixel; }    // outer, twips
  virtual std::int32_t Height() const { return ScaleHeight() * TwipsPerPixel; }  // outer, twips
  // Places and sizes the surface inside its control, in twips.
  virtual void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) = 0;

  // --- text ----------------------------------------------------------------------
  const StdFont& Font() const { return font_; }
  void SetFont(const StdFont& font);
  virtual double TextWidth(const std::string& text) const = 0;   // pixels
  virtual double TextHeight(const std::string& text) const = 0;  // pixels
  double CurrentX() const { return currentX_; }
  void SetCurrentX(double x) { currentX_ = x; }
  double CurrentY() const { return currentY_; }
  void SetCurrentY(double y) { currentY_ = y; }
  // Draws the text at the current position in the fore colour, then moves the
  // position to the start of the next line.
  void Print(const std::string& text);

  // --- whole surface -------------------------------------------------------------
  // Clears to the background colour and resets the text position to (0, 0).
  void Cls();
  // Copies another surface's drawing onto this one at (x, y).
  virtual void PaintPicture(const DrawingSurface& source, std::int32_t x, std::int32_t y) = 0;
  // Paints a picture's opaque pixels with its top left corner at (x, y): one line per
  // run of neighbouring pixels of one colour, through the line hook, so every host draws
  // it without code of its own. The fore colour, draw width and pen position are kept.
  void PaintPicture(const Picture& picture, std::int32_t x, std::int32_t y);
  const std::string& ToolTipText() const { return toolTipText_; }
  // Assigning the tip, even the same text again, shows it afresh if the pointer rests here.
  void SetToolTipText(const std::string& text);
  // Shows what was drawn.
  virtual void Refresh() = 0;

  // --- the platform's drawing calls ------------------------------------------------
  // Rectangle: outline in the fore colour at the draw width, filled with the fill colour
  // unless the fill style is transparent; the right and bottom edges are excluded.
  virtual void Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) = 0;
  // Polygon: filled (unless transparent) and outlined, closing back to the first point.
  virtual void Polygon(const std::vector<Point>& points) = 0;
  // MoveToEx/LineTo: a line from the pen position; the end point is not drawn.
  void MoveToEx(std::int32_t x, std::int32_t y) { penPosition_ = {x, y}; }
  void LineTo(std::int32_t x, std::int32_t y);
  Point PenPosition() const { return penPosition_; }
  // DrawEdge: three-dimensional edges in the system colours (edge and flags from `edge`).
  virtual void DrawEdge(const Rect& rect, std::int32_t edgeKind, std::int32_t flags) = 0;
  // DrawFocusRect: a dotted frame drawn by inversion; drawn twice it is gone.
  virtual void DrawFocusRect(const Rect& rect) = 0;
  // DrawTextA: text in the fore colour, transparent background, clipped to the rectangle.
  virtual void DrawTextA(const std::string& text, const Rect& rect, std::int32_t format) = 0;

  // --- input -----------------------------------------------------------------------
  // The control that receives this surface's mouse, key and focus events.
  void SetListener(SurfaceEvents* listener) { listener_ = listener; }
  SurfaceEvents* Listener() const { return listener_; }

 protected:
  // Hooks for the implementation; the state above is already updated when they run.
  virtual void ClearSurface() = 0;
  virtual void DrawLine(Point from, Point to) = 0;
  virtual void DrawPrintedText(double x, double y, const std::string& text) = 0;
  virtual void FontChanged() {}
  virtual void ToolTipChanged() {}

 private:
  OLE_COLOR foreColor_ = sys::ButtonText;
  OLE_COLOR backColor_ = sys::ButtonFace;
  OLE_COLOR fillColor_ = 0;
  std::int32_t fillStyle_ = fill::Transparent;
  std::int32_t drawWidth_ = 1;
  StdFont font_;
  double currentX_ = 0;
  double currentY_ = 0;
  Point penPosition_;
  std::string toolTipText_;
  SurfaceEvents* listener_ = nullptr;
};

}  // namespace lumo
