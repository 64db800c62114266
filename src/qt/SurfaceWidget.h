#pragma once

#include <functional>

#include <QFont>
#include <QImage>
#include <QRegion>
#include <QWidget>

#include "colormodel/DrawingSurface.h"
#include "qt/PendingDrawing.h"

namespace LumoColorCombo::host {

// `picScreen` on Qt: a child widget that keeps what is drawn in a persistent backing
// image and shows it in paintEvent.
//
// Coordinates are logical pixels. The image carries the widget's device pixel ratio, so
// at 1.5x or 2x each logical pixel is a block of device pixels and the library's pixel
// rules (right and bottom edges left out, line end points not drawn) hold per logical
// pixel while everything stays sharp; text is drawn at the full device resolution.
//
// Colours are resolved when drawn, system colours through this widget's palette; the
// image holds the result. When the palette or the pixel ratio changes, the widget tells
// its owning control (setStaleHandler) and then signals it, so that the control draws
// itself again.
//
// Input goes to the listener: mouse positions as logical pixels (outside the widget
// while the mouse is grabbed), buttons 1 left, 2 right, 4 middle, shift mask 1 Shift,
// 2 Ctrl, 4 Alt, keys as virtual-key codes. A double click arrives, as the controls
// expect, as press, release, DblClick, release: Qt turns the second press into the double-click
// event, which raises DblClick and no second MouseDown.
class SurfaceWidget : public QWidget, public lumo::DrawingSurface {
  Q_OBJECT

 public:
  explicit SurfaceWidget(QWidget* parent = nullptr);
  ~SurfaceWidget() override;

  // What has been drawn, at the device resolution (its devicePixelRatio is the
  // widget's). Pixel (x, y) of a 1x image is logical pixel (x, y).
  const QImage& image() const;
  // The widget behind a handle from hWnd(), or null once it is gone.
  static QWidget* widgetFromHandle(lumo::WindowHandle handle);
  // The QFont a font description stands for: the size in points at the platform's
  // 96 dots per inch, as whole pixels; an absent family is left to Qt's substitution.
  static QFont qtFont(const lumo::StdFont& font);
  // The font a `Font` property answers: the same face, sized in points as described, so
  // that reading the property and writing it back changes nothing.
  static QFont propertyFont(const lumo::StdFont& font);
  // A colour value as this surface draws it now.
  QColor resolve(lumo::OLE_COLOR color) const;

  // Why a drawing went stale: system colours from an old palette, or pixels at an old
  // density.
  enum class Stale { Palette, PixelRatio };
  // What the owning control does then, called before the matching signal goes out: a
  // plain call, where a connection per control would cost more heap than the widget's
  // other links together.
  void setStaleHandler(std::function<void(Stale)> handler) { staleHandler_ = std::move(handler); }

  // --- lumo::DrawingSurface -------------------------------------------------------
  lumo::WindowHandle hWnd() const override;
  std::int32_t ScaleWidth() const override { return width(); }
  std::int32_t ScaleHeight() const override { return height(); }
  void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) override;
  double TextWidth(const std::string& text) const override;
  double TextHeight(const std::string& text) const override;
  void PaintPicture(const lumo::DrawingSurface& source, std::int32_t x, std::int32_t y) override;
  void Refresh() override;
  // Shapes: the outline follows the one-pixel path exactly; a wider pen (DrawWidth > 1)
  // paints a square footprint centred on each pixel of that path, its even-width extra
  // pixel above and left. Fill styles other than solid (0) leave the inside alone.
  void Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) override;
  void Polygon(const std::vector<lumo::Point>& points) override;
  void DrawEdge(const lumo::Rect& rect, std::int32_t edgeKind, std::int32_t flags) override;
  void DrawFocusRect(const lumo::Rect& rect) override;
  void DrawTextA(const std::string& text, const lumo::Rect& rect, std::int32_t format) override;

 signals:
  // The palette changed: system colours already drawn are stale; draw again.
  void paletteChanged();
  // The device pixel ratio changed (the window moved to another screen): the old
  // drawing was scaled over; draw again for sharp output.
  void devicePixelRatioChanged();

 protected:
  // --- lumo::DrawingSurface hooks ---
  void ClearSurface() override;
  void DrawLine(lumo::Point from, lumo::Point to) override;
  void DrawPrintedText(double x, double y, const std::string& text) override;
  void FontChanged() override;
  void ToolTipChanged() override;

  // --- QWidget ---
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  static QFont newQtFont(const lumo::StdFont& font);
  QRgb rgb(lumo::OLE_COLOR color) const;
  // The image, first brought to the widget's current size and pixel ratio. Qt sends no
  // resize event to a hidden widget, yet the controls draw before they are shown.
  // Steps still pending go into the image before it changes size.
  QImage& backing() const;
  // Puts a drawing step into the image: now while the widget is visible, when it is
  // painted or its image is read while hidden (PendingDrawing). A step writes into
  // image_ as backing() has sized it and carries every colour and pen it needs.
  template <class Step>
  void draw(Step&& step);
  QSize deviceSize() const;
  void rebuildImage() const;
  void readRatio();
  // Logical pixels changed since the last flush; an empty rectangle means all of them.
  void damage(const QRect& area);
  void damageShape(int left, int top, int right, int bottom);
  void flushDamage();
  void syncDevicePixelRatio();
  // The stale handler, then the signal, unless the handler took the surface away.
  void goneStale(Stale why);
  void strokePolyline(const std::vector<lumo::Point>& points, QRgb color, int penWidth);
  // The tip text last assigned, handed to QWidget::setToolTip first if it is new.
  QString takeToolTip();
  bool deliverKey(QKeyEvent* event);
  static bool isNavigationKey(int qtKey);

  mutable QImage image_;
  mutable PendingDrawing pending_;
  qreal ratio_ = 1.0;  // the widget's device pixel ratio, read when it can change
  QRegion damage_;
  bool inMove_ = false;  // a pointer move is being handled; it flushes the damage itself
  qreal lineSpacing_ = 0;  // of qfont_
  qreal announcedRatio_ = 1.0;
  QFont qfont_;
  // The tip text as last assigned, and whether QWidget's copy still lags behind it.
  std::string tipGiven_;
  bool tipPending_ = false;
  std::function<void(Stale)> staleHandler_;
};

}  // namespace LumoColorCombo::host
