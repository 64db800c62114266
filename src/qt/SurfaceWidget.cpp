#include "qt/SurfaceWidget.h"

#include <QCursor>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "qt/AccessibleCellList.h"
#include "qt/AccessibleFactory.h"
#include "qt/EdgeStrokes.h"
#include "qt/PixelCanvas.h"
#include "qt/Rasterizer.h"
#include "qt/SystemColors.h"
#include "qt/Twips.h"
#include "qt/VirtualKeys.h"
#include "qt/WidgetHandles.h"

namespace LumoColorCombo::host {
namespace {

// Fonts are measured at 96 dots per inch, the same screen on which a pixel is 15 twips.
constexpr double kPixelsPerPoint = 96.0 / 72.0;

// DrawTextA's format bits beyond the two that Geometry.h names.
constexpr std::int32_t kFormatRight = 0x2;
constexpr std::int32_t kFormatVCenter = 0x4;
constexpr std::int32_t kFormatBottom = 0x8;
constexpr std::int32_t kFormatWordBreak = 0x10;
constexpr std::int32_t kFormatSingleLine = 0x20;
constexpr std::int32_t kFormatNoClip = 0x100;
constexpr std::int32_t kFormatNoPrefix = 0x800;

bool HasBit(std::int32_t format, std::int32_t bit) { return (format & bit) != 0; }

// Qt's alignment for a DrawTextA format. As the controls expect, an ampersand marks the next
// character as the access key (drawn underlined, "&&" draws one) unless told otherwise;
// vertical placement applies to single-line text only.
int TextFlags(std::int32_t format) {
  int flags = HasBit(format, lumo::textformat::Center) ? Qt::AlignHCenter
              : HasBit(format, kFormatRight)           ? Qt::AlignRight
                                                       : Qt::AlignLeft;
  const bool singleLine = HasBit(format, kFormatSingleLine);
  flags |= singleLine && HasBit(format, kFormatVCenter)  ? Qt::AlignVCenter
           : singleLine && HasBit(format, kFormatBottom) ? Qt::AlignBottom
                                                         : Qt::AlignTop;
  if (singleLine) flags |= Qt::TextSingleLine;
  if (HasBit(format, kFormatWordBreak)) flags |= Qt::TextWordWrap;
  if (!HasBit(format, kFormatNoPrefix)) flags |= Qt::TextShowMnemonic;
  return flags;
}

// The core separates lines with CR LF; a lone LF counts too.
QStringList Lines(const std::string& text) {
  QString all = QString::fromStdString(text);
  all.remove(QLatin1Char('\r'));
  return all.split(QLatin1Char('\n'));
}

std::int16_t ButtonCode(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton: return lumo::mouse::Left;
    case Qt::RightButton: return lumo::mouse::Right;
    case Qt::MiddleButton: return lumo::mouse::Middle;
    default: return 0;
  }
}

std::int16_t ButtonMask(Qt::MouseButtons buttons) {
  std::int16_t mask = 0;
  if (buttons.testFlag(Qt::LeftButton)) mask |= lumo::mouse::Left;
  if (buttons.testFlag(Qt::RightButton)) mask |= lumo::mouse::Right;
  if (buttons.testFlag(Qt::MiddleButton)) mask |= lumo::mouse::Middle;
  return mask;
}

// A second image over the same pixels, for a QPainter. The raster engine a painter
// starts stays with the image it painted, about 2 kB with its buffers: painted through
// a view, no surface keeps one. The view of the pixels painted last is kept, with its
// engine, for the process: a surface that paints text again and again (a hover
// repaints a button's caption) starts no new engine each time. It is never destroyed,
// as an engine must not outlive the application's font caches.
QImage& PainterView(QImage& image) {
  static auto* view = new QImage;
  uchar* bits = image.bits();
  if (view->constBits() != bits || view->size() != image.size() || view->bytesPerLine() != image.bytesPerLine() ||
      view->format() != image.format()) {
    *view = QImage(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
  }
  if (view->devicePixelRatio() != image.devicePixelRatio()) view->setDevicePixelRatio(image.devicePixelRatio());
  return *view;
}

}  // namespace

SurfaceWidget::SurfaceWidget(QWidget* parent) : QWidget(parent), qfont_(qtFont(Font())) {
  // Every pixel comes from the image; Qt need not clear behind it.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  // Pointer moves without a button feed the controls' hot tracking.
  setMouseTracking(true);
  announcedRatio_ = devicePixelRatioF();
  ratio_ = announcedRatio_;
  lineSpacing_ = QFontMetricsF(qfont_).lineSpacing();
  backing();
  // Screen readers see the cells drawn here through the library's interfaces.
  AccessibleFactory::install();
}

SurfaceWidget::~SurfaceWidget() = default;

QWidget* SurfaceWidget::widgetFromHandle(lumo::WindowHandle handle) { return WidgetHandles::widgetOf(handle); }

QFont SurfaceWidget::qtFont(const lumo::StdFont& font) {
  // Nearly every surface asks for one of the same few fonts: the ones made last are
  // handed out again, so that surfaces share a QFont's data instead of holding a copy
  // each. Kept for the process, as a font must not outlive the application's caches.
  constexpr std::size_t kKept = 4;
  static auto* made = new std::array<std::optional<std::pair<lumo::StdFont, QFont>>, kKept>();
  static std::size_t next = 0;
  for (const auto& kept : *made) {
    if (kept && kept->first == font) return kept->second;
  }
  auto& slot = (*made)[next];
  next = (next + 1) % kKept;
  slot.emplace(font, newQtFont(font));
  return slot->second;
}

QFont SurfaceWidget::newQtFont(const lumo::StdFont& font) {
  QFont result(QString::fromStdString(font.Name));
  // A family this system lacks ("MS Sans Serif") falls back to a sans-serif one.
  result.setStyleHint(QFont::SansSerif);
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.Size * kPixelsPerPoint))));
  result.setBold(font.Bold);
  result.setItalic(font.Italic);
  result.setUnderline(font.Underline);
  result.setStrikeOut(font.Strikethrough);
  return result;
}

QFont SurfaceWidget::propertyFont(const lumo::StdFont& font) {
  QFont result = qtFont(font);
  result.setPointSizeF(font.Size);
  return result;
}

QColor SurfaceWidget::resolve(lumo::OLE_COLOR color) const { return SystemColors::resolve(color, palette()); }

QRgb SurfaceWidget::rgb(lumo::OLE_COLOR color) const { return resolve(color).rgb(); }

lumo::WindowHandle SurfaceWidget::hWnd() const { return WidgetHandles::handleOf(this); }

// --- size and backing image ---------------------------------------------------------

void SurfaceWidget::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  setGeometry(Twips::toPixels(left), Twips::toPixels(top), std::max(0, Twips::toPixels(width)),
              std::max(0, Twips::toPixels(height)));
}

QSize SurfaceWidget::deviceSize() const {
  return {static_cast<int>(std::ceil(width() * ratio_)), static_cast<int>(std::ceil(height() * ratio_))};
}

QImage& SurfaceWidget::backing() const {
  if (image_.size() != deviceSize() || image_.devicePixelRatio() != ratio_) {
    pending_.run();
    rebuildImage();
  }
  return image_;
}

const QImage& SurfaceWidget::image() const {
  QImage& image = backing();
  pending_.run();
  return image;
}

template <class Step>
void SurfaceWidget::draw(Step&& step) {
  backing();  // sized now, so that a kept step meets the image it was drawn for
  if (isVisible()) {
    pending_.run();
    step();
  } else {
    pending_.add(std::forward<Step>(step));
  }
}

// Asking Qt for the ratio walks to the window and its screen; every primitive needs it,
// so it is read again only when it can have changed: a new screen, parent or showing,
// and before each paint (syncDevicePixelRatio).
void SurfaceWidget::readRatio() { ratio_ = devicePixelRatioF(); }

// The primitives of one event-loop turn add up to one update of the rectangle they
// touched: repainting the whole widget for each of them would cost more than drawing.
void SurfaceWidget::damage(const QRect& area) {
  if (!isVisible()) return;  // showing paints everything anyway
  if (damage_.isEmpty() && !inMove_) QMetaObject::invokeMethod(this, &SurfaceWidget::flushDamage, Qt::QueuedConnection);
  // A region, not one bounding rectangle: a hover repaints two cells and the two
  // buttons, far apart, and the paint copies only what the region covers.
  // Clipped first, so that after a clear every shape lies inside the region it adds to.
  damage_ += area.isEmpty() ? rect() : area & rect();
}

void SurfaceWidget::flushDamage() {
  if (!damage_.isEmpty()) update(damage_);
  damage_ = QRegion();
}

void SurfaceWidget::damageShape(int left, int top, int right, int bottom) {
  // A wide pen reaches DrawWidth pixels past the path on every side.
  const int pen = std::max(1, static_cast<int>(DrawWidth()));
  damage(QRect(QPoint(std::min(left, right) - pen, std::min(top, bottom) - pen),
               QPoint(std::max(left, right) + pen, std::max(top, bottom) + pen)));
}

void SurfaceWidget::rebuildImage() const {
  QImage next(deviceSize(), QImage::Format_RGB32);
  next.setDevicePixelRatio(devicePixelRatioF());
  next.fill(rgb(BackColor()));
  // The drawing so far stays where it was, at the top left; a change of ratio scales it.
  if (!next.isNull() && !image_.isNull()) {
    QImage& view = PainterView(next);
    QPainter painter(&view);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPointF(0, 0), image_);
  }
  image_ = std::move(next);
}

void SurfaceWidget::syncDevicePixelRatio() {
  readRatio();
  if (announcedRatio_ == ratio_) return;
  announcedRatio_ = ratio_;
  backing();
  update();
  goneStale(Stale::PixelRatio);
}

void SurfaceWidget::goneStale(Stale why) {
  if (staleHandler_) {
    const QPointer<SurfaceWidget> self(this);
    staleHandler_(why);
    if (!self) return;
  }
  if (why == Stale::Palette) {
    emit paletteChanged();
  } else {
    emit devicePixelRatioChanged();
  }
}

void SurfaceWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  backing();
}

void SurfaceWidget::paintEvent(QPaintEvent* /*event*/) {
  syncDevicePixelRatio();
  QPainter painter(this);
  painter.drawImage(QPointF(0, 0), image());
}

// Everything drawn is already in the image; what is not on screen yet is the damage.
void SurfaceWidget::Refresh() { flushDamage(); }

void SurfaceWidget::ClearSurface() {
  // Every pixel is about to be overwritten: what was still pending is moot.
  pending_.drop();
  draw([this, color = rgb(BackColor())] { image_.fill(color); });
  damage(rect());
}

void SurfaceWidget::PaintPicture(const lumo::DrawingSurface& source, std::int32_t x, std::int32_t y) {
  const auto* surface = dynamic_cast<const SurfaceWidget*>(&source);
  if (surface == nullptr || backing().isNull()) return;
  // A copy, so that a surface can paint itself onto itself.
  const QImage picture = surface->image();
  draw([this, picture, x, y] {
    QImage& view = PainterView(image_);
    QPainter painter(&view);
    painter.drawImage(QPointF(x, y), picture);
  });
  damage(QRect(QPoint(x, y), picture.deviceIndependentSize().toSize() + QSize(1, 1)));
}

// --- shapes -------------------------------------------------------------------------

void SurfaceWidget::strokePolyline(const std::vector<lumo::Point>& points, QRgb color, int penWidth) {
  PixelCanvas canvas(image_);
  for (std::size_t i = 0; i < points.size(); ++i) {
    canvas.line(points[i], points[(i + 1) % points.size()], color, penWidth);
  }
}

void SurfaceWidget::Rectangle(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
  if (left > right) std::swap(left, right);
  if (top > bottom) std::swap(top, bottom);
  if (left == right || top == bottom) return;
  const bool solid = FillStyle() == lumo::fill::Solid;
  draw([this, left, top, right, bottom, solid, fill = rgb(FillColor()), pen = rgb(ForeColor()),
        width = static_cast<int>(DrawWidth())] {
    if (solid) PixelCanvas(image_).fillRect(left + 1, top + 1, right - 1, bottom - 1, fill);
    // The outline runs through the last column and row inside the rectangle; each side
    // stops short of the next corner, which the next side draws.
    strokePolyline({{left, top}, {right - 1, top}, {right - 1, bottom - 1}, {left, bottom - 1}}, pen, width);
  });
  damageShape(left, top, right, bottom);
}

void SurfaceWidget::Polygon(const std::vector<lumo::Point>& points) {
  if (points.size() < 2) return;
  draw([this, points, solid = FillStyle() == lumo::fill::Solid, rows = height(), fill = rgb(FillColor()),
        pen = rgb(ForeColor()), width = static_cast<int>(DrawWidth())] {
    if (solid) {
      PixelCanvas canvas(image_);
      Rasterizer::polygonInterior(points, 0, rows,
                                  [&](int y, int first, int last) { canvas.fillRect(first, y, last, y + 1, fill); });
    }
    // Each side leaves out its end point, which is the start of the next side, so every
    // vertex is drawn exactly once.
    strokePolyline(points, pen, width);
  });
  const auto [minX, maxX] = std::minmax_element(points.begin(), points.end(), [](auto a, auto b) { return a.X < b.X; });
  const auto [minY, maxY] = std::minmax_element(points.begin(), points.end(), [](auto a, auto b) { return a.Y < b.Y; });
  damageShape(minX->X, minY->Y, maxX->X, maxY->Y);
}

void SurfaceWidget::DrawLine(lumo::Point from, lumo::Point to) {
  draw([this, from, to, pen = rgb(ForeColor()), width = static_cast<int>(DrawWidth())] {
    PixelCanvas(image_).line(from, to, pen, width);
  });
  damageShape(from.X, from.Y, to.X, to.Y);
}

void SurfaceWidget::DrawEdge(const lumo::Rect& rect, std::int32_t edgeKind, std::int32_t flags) {
  std::vector<std::pair<EdgeStroke, QRgb>> strokes;
  for (const EdgeStroke& stroke : EdgeStrokes::of(rect, edgeKind, flags)) {
    strokes.emplace_back(stroke, SystemColors::systemColor(stroke.SystemColorIndex, palette()).rgb());
  }
  draw([this, strokes = std::move(strokes)] {
    PixelCanvas canvas(image_);
    for (const auto& [stroke, color] : strokes) canvas.line(stroke.From, stroke.To, color, 1);
  });
  damage(QRect(QPoint(rect.Left - 1, rect.Top - 1), QPoint(rect.Right + 1, rect.Bottom + 1)));
}

void SurfaceWidget::DrawFocusRect(const lumo::Rect& rect) {
  // Four one-pixel bands inverted through a checkerboard pattern: top and bottom rows
  // full width, the side columns between them.
  const auto [left, top, right, bottom] = rect;
  draw([this, left, top, right, bottom] {
    PixelCanvas canvas(image_);
    canvas.invertCheckerboard(left, top, right, top + 1);
    canvas.invertCheckerboard(left, bottom - 1, right, bottom);
    canvas.invertCheckerboard(left, top + 1, left + 1, bottom - 1);
    canvas.invertCheckerboard(right - 1, top + 1, right, bottom - 1);
  });
  damage(QRect(QPoint(left - 1, top - 1), QPoint(right + 1, bottom + 1)));
}

// --- text ---------------------------------------------------------------------------

void SurfaceWidget::FontChanged() {
  qfont_ = qtFont(Font());
  lineSpacing_ = QFontMetricsF(qfont_).lineSpacing();
}

double SurfaceWidget::TextWidth(const std::string& text) const {
  const QFontMetricsF metrics(qfont_);
  double widest = 0;
  for (const QString& line : Lines(text)) widest = std::max(widest, metrics.horizontalAdvance(line));
  return widest;
}

double SurfaceWidget::TextHeight(const std::string& text) const {
  // One line per LF and one more, as Lines() splits the text; the grids ask for this
  // for every cell they place.
  const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
  return lineSpacing_ * static_cast<double>(lines);
}

void SurfaceWidget::DrawTextA(const std::string& text, const lumo::Rect& rect, std::int32_t format) {
  const QRectF box(rect.Left, rect.Top, rect.Right - rect.Left, rect.Bottom - rect.Top);
  const bool clip = !HasBit(format, kFormatNoClip);
  if (backing().isNull() || (clip && (box.width() <= 0 || box.height() <= 0))) return;
  draw([this, box, clip, font = qfont_, pen = resolve(ForeColor()), flags = TextFlags(format),
        line = QString::fromStdString(text)] {
    QImage& view = PainterView(image_);
    QPainter painter(&view);
    if (clip) painter.setClipRect(box);
    painter.setFont(font);
    painter.setPen(pen);
    painter.drawText(box, flags, line);
  });
  damage(clip ? box.toAlignedRect() : QWidget::rect());
}

void SurfaceWidget::DrawPrintedText(double x, double y, const std::string& text) {
  if (backing().isNull()) return;
  draw([this, x, y, font = qfont_, pen = resolve(ForeColor()), lines = Lines(text)] {
    QImage& view = PainterView(image_);
    QPainter painter(&view);
    painter.setFont(font);
    painter.setPen(pen);
    const QFontMetricsF metrics(font);
    double baseline = y + metrics.ascent();
    for (const QString& line : lines) {
      painter.drawText(QPointF(x, baseline), line);
      baseline += metrics.lineSpacing();
    }
  });
  damage(rect());
}

void SurfaceWidget::ToolTipChanged() {
  // A pointer crossing the grid renames the tip on every move; the text reaches Qt only
  // when Qt asks for it (QEvent::ToolTip), when a tip is up, or when the same text is
  // assigned again, which is how a control asks for the tip of a resting pointer.
  const bool again = ToolTipText() == tipGiven_;
  tipGiven_ = ToolTipText();
  tipPending_ = true;
  if (!again && !QToolTip::isVisible()) return;
  const QString tip = takeToolTip();
  const QPoint pointer = QCursor::pos();
  if (!isVisible() || !rect().contains(mapFromGlobal(pointer))) return;
  // Assigned while the pointer rests here: show it now, even if the text is unchanged
  // and its earlier showing has timed out.
  if (tip.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(pointer, tip, this);
  }
}

QString SurfaceWidget::takeToolTip() {
  if (tipPending_) {
    setToolTip(QString::fromStdString(tipGiven_));
    tipPending_ = false;
  }
  return toolTip();
}

// --- input --------------------------------------------------------------------------

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
  // The double-click event that follows stands for this press.
  if (event->flags().testFlag(Qt::MouseEventCreatedDoubleClick)) return;
  const std::int16_t button = ButtonCode(event->button());
  if (Listener() == nullptr || button == 0) return;
  Listener()->MouseDown(button, VirtualKeys::shiftState(event->modifiers()), event->position().x(),
                        event->position().y());
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
  if (Listener() == nullptr) return;
  // What a move draws is handed to Qt as the move ends, with no flush posted: moves come
  // in streams, and each posted event wakes the event loop once more.
  const QPointer<SurfaceWidget> self(this);
  inMove_ = true;
  Listener()->MouseMove(ButtonMask(event->buttons()), VirtualKeys::shiftState(event->modifiers()),
                        event->position().x(), event->position().y());
  if (!self) return;
  inMove_ = false;
  flushDamage();
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
  const std::int16_t button = ButtonCode(event->button());
  if (Listener() == nullptr || button == 0) return;
  Listener()->MouseUp(button, VirtualKeys::shiftState(event->modifiers()), event->position().x(),
                      event->position().y());
  // A picture surface's capture ends with the last button's release: a grid that took
  // the mouse to see a press outside it must not keep the whole application's mouse
  // after that press.
  if (QWidget::mouseGrabber() == this && event->buttons() == Qt::NoButton) releaseMouse();
}

void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  // Not QWidget's default, which would turn it into a second press.
  if (Listener() == nullptr || ButtonCode(event->button()) == 0) return;
  Listener()->DblClick();
}

bool SurfaceWidget::deliverKey(QKeyEvent* event) {
  std::int16_t keyCode = VirtualKeys::keyCode(*event);
  if (Listener() == nullptr || keyCode == 0) return false;
  const QPointer<SurfaceWidget> self(this);
  // Only while a screen reader listens: where the keyboard is, to announce a move.
  AccessibleCellList* reader = AccessibleCellList::listening(this);
  const int before = reader != nullptr ? reader->focusedItem() : -1;
  Listener()->KeyDown(keyCode, VirtualKeys::shiftState(event->modifiers()));
  // The handler may have closed the window this surface lives in.
  if (!self) return keyCode == 0;
  update();
  if (AccessibleCellList* after = AccessibleCellList::listening(this)) after->announceMove(before);
  return keyCode == 0;
}

void SurfaceWidget::keyPressEvent(QKeyEvent* event) {
  // A key the handler swallowed (set to 0) ends here; any other goes on to the parent,
  // as Qt passes on an ignored key, so the owning control can see it too.
  if (deliverKey(event)) {
    event->accept();
  } else {
    event->ignore();
  }
}

bool SurfaceWidget::isNavigationKey(int qtKey) {
  switch (qtKey) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      return true;
    default:
      return false;
  }
}

bool SurfaceWidget::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      // The keys the controls move and choose with reach the surface before any
      // application shortcut on the same key.
      auto* key = static_cast<QKeyEvent*>(event);
      const bool plain = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
      if (Listener() != nullptr && plain && isNavigationKey(key->key())) {
        event->accept();
        return true;
      }
      break;
    }
    case QEvent::KeyPress: {
      // Qt would spend Tab on moving the focus before keyPressEvent sees it; the
      // handler sees it first and may keep the focus here by swallowing it.
      auto* key = static_cast<QKeyEvent*>(event);
      const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
      if (tab && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        const QPointer<SurfaceWidget> self(this);
        if (!deliverKey(key) && self) focusNextPrevChild(key->key() == Qt::Key_Tab);
        return true;
      }
      break;
    }
    case QEvent::ScreenChangeInternal:
      syncDevicePixelRatio();
      break;
    case QEvent::ParentChange:
    case QEvent::Show:
      readRatio();
      break;
    case QEvent::ToolTip:
      takeToolTip();
      break;
    default:
      break;
  }
  return QWidget::event(event);
}

void SurfaceWidget::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  if (Listener() != nullptr) Listener()->GotFocus();
}

void SurfaceWidget::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  if (Listener() != nullptr) Listener()->LostFocus();
}

void SurfaceWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) goneStale(Stale::Palette);
}

}  // namespace LumoColorCombo::host
