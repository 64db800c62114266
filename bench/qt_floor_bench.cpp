// The controls beside a plain-Qt floor, timed alternately in the same run: each
// iteration runs ours once and the floor once, so a slow or busy machine slows both.
//
// - Refresh of ColorBox (cpsPalette40 without buttons, cpsPalette256WithBW) and of
//   ColorHexagon, against a bare QPainter filling and framing the same number of cells
//   into a QImage of the surface's size and pixel ratio;
// - create + destroy (and create + show + destroy) of each control as a child of a
//   shown window, against a QComboBox plus that floor's first paint into a fresh image;
// - memory per shown control (the allocator's heap in use over many controls, less
//   the control's drawing image as the allocator holds it) against a QComboBox;
// - one pointer move to a new cell of the 272-cell grid, painted, with the pointer over
//   the grid (so the tooltip work counts), beside the same move over a plain QWidget
//   that repaints the square under the pointer with one update(rect) per move.
// The summary at the end gives every ratio. Run it under QT_SCALE_FACTOR=2 for 2x.
#include "PaintCounter.h"
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <QtTest/QTest>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <LumoColorCombo/ColorBox.h>
#include <LumoColorCombo/ColorCombo.h>
#include <LumoColorCombo/ColorHexagon.h>
#include "colorhexagon/HexagonGeometry.h"
#include "qt/SurfaceWidget.h"

namespace {

using namespace LumoColorCombo;

struct Line {
  std::string work;
  double ours;
  double floor;
  const char* unit;
};
std::vector<Line> summary;

// Google Benchmark runs each function again until the time is stable; the last run counts.
void Report(Line line) {
  for (Line& known : summary) {
    if (known.work == line.work) {
      known = std::move(line);
      return;
    }
  }
  summary.push_back(std::move(line));
}

double Ratio() { return QGuiApplication::primaryScreen()->devicePixelRatio(); }

std::string Named(const char* work) { return std::string(work) + " @" + std::to_string(static_cast<int>(Ratio())) + "x"; }

void Settle() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

// A shown top-level window to put the controls on.
QWidget& Window() {
  static QWidget* window = [] {
    auto* w = new QWidget;
    w->resize(640, 480);
    w->show();
    while (!w->windowHandle()->isExposed()) Settle();
    return w;
  }();
  return *window;
}

// Runs `ours` and `floor` alternately; the iteration time is ours, the counters give
// the floor and the ratio.
void Alternate(benchmark::State& state, const char* work, const std::function<void()>& ours,
               const std::function<void()>& floor) {
  double oursNs = 0;
  double floorNs = 0;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    ours();
    const double a = static_cast<double>(clock.nsecsElapsed());
    clock.restart();
    floor();
    const double b = static_cast<double>(clock.nsecsElapsed());
    oursNs += a;
    floorNs += b;
    state.SetIterationTime(a / 1e9);
  }
  const auto n = static_cast<double>(state.iterations());
  state.counters["floor_us"] = floorNs / n / 1e3;
  state.counters["ratio"] = oursNs / floorNs;
  Report({Named(work), oursNs / n / 1e3, floorNs / n / 1e3, "us"});
}

// --- the floors -------------------------------------------------------------------------

QImage FreshImage(QSize logical) {
  QImage image(logical * Ratio(), QImage::Format_RGB32);
  image.setDevicePixelRatio(Ratio());
  return image;
}

// Fills and frames `cells` 12-pixel squares on an 18-pixel pitch.
void FloorGrid(QImage& image, int cells, int columns) {
  image.fill(Qt::lightGray);
  QPainter painter(&image);
  painter.setPen(Qt::darkGray);
  for (int i = 0; i < cells; ++i) {
    const QRect square((i % columns) * 18 + 4, (i / columns) * 18 + 5, 12, 12);
    painter.fillRect(square, QColor::fromRgb(static_cast<QRgb>(i * 0x010203)));
    painter.drawRect(square.adjusted(0, 0, -1, -1));
  }
}

// Fills and frames 135 honeycomb cells with one drawPolygon each.
void FloorHoneycomb(QImage& image) {
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(Qt::black);
  for (int i = 0; i < 135; ++i) {
    QPolygon outline;
    for (const lumo::Point& p : lumo::HexagonGeometry::Outline(i % 15, i / 15, false)) outline << QPoint(p.X, p.Y);
    painter.setBrush(QColor::fromRgb(static_cast<QRgb>(i * 0x030201)));
    painter.drawPolygon(outline);
  }
}

// --- Refresh --------------------------------------------------------------------------

ColorBox* NewGrid(QWidget* parent, ComboPickStyles style, bool buttons) {
  auto* box = new ColorBox(parent);
  // The buttons are on by default: a host that wants them sets nothing.
  if (!buttons) {
    box->setAllowAutomatic(false);
    box->setAllowMoreColors(false);
  }
  box->setPickStyle(style);
  return box;
}

void RefreshGrid(benchmark::State& state, const char* work, ComboPickStyles style, int cells, int columns,
                 bool buttons) {
  std::unique_ptr<ColorBox> box(NewGrid(&Window(), style, buttons));
  box->show();
  Settle();
  QImage floor = FreshImage(box->surface()->size());
  Alternate(
      state, work, [&] { box->Refresh(); }, [&] { FloorGrid(floor, cells, columns); });
}

void BM_Refresh_Palette40(benchmark::State& state) {
  RefreshGrid(state, "Refresh ColorBox cpsPalette40", cpsPalette40, 40, 8, false);
}
void BM_Refresh_Palette256WithBW(benchmark::State& state) {
  RefreshGrid(state, "Refresh ColorBox cpsPalette256WithBW", cpsPalette256WithBW, 272, 16, true);
}

void BM_Refresh_Hexagon(benchmark::State& state) {
  auto hexagon = std::make_unique<ColorHexagon>(&Window());
  hexagon->show();
  Settle();
  QImage floor = FreshImage(hexagon->surface()->size());
  Alternate(
      state, "Refresh ColorHexagon", [&] { hexagon->Refresh(); }, [&] { FloorHoneycomb(floor); });
}

// --- create and destroy ---------------------------------------------------------------

// QComboBox plus the floor's first paint of `paint`'s cells into a fresh image.
void FloorCreate(bool show, QSize size, const std::function<void(QImage&)>& paint) {
  auto* combo = new QComboBox(&Window());
  QImage image = FreshImage(size);
  paint(image);
  if (show) {
    combo->show();
    Settle();
  }
  delete combo;
}

template <class Make>
void Create(benchmark::State& state, const char* work, bool show, Make make,
            const std::function<void(QImage&)>& paint) {
  QSize size;
  {
    std::unique_ptr<QWidget> probe(make(&Window()));
    size = probe->size();
  }
  Alternate(
      state, work,
      [&] {
        QWidget* control = make(&Window());
        if (show) {
          control->show();
          Settle();
        }
        delete control;
      },
      [&] { FloorCreate(show, size, paint); });
}

QWidget* MakeGrid(QWidget* parent) { return NewGrid(parent, cpsPalette40, true); }
QWidget* MakeHexagon(QWidget* parent) { return new ColorHexagon(parent); }
QWidget* MakeCombo(QWidget* parent) { return new ColorCombo(parent); }
void PaintGrid(QImage& image) { FloorGrid(image, 40, 8); }
void PaintCombo(QImage& image) { image.fill(Qt::white); }

void BM_Create_ColorBox(benchmark::State& s) { Create(s, "create+destroy ColorBox", false, MakeGrid, PaintGrid); }
void BM_CreateShow_ColorBox(benchmark::State& s) {
  Create(s, "create+show+destroy ColorBox", true, MakeGrid, PaintGrid);
}
void BM_Create_ColorHexagon(benchmark::State& s) {
  Create(s, "create+destroy ColorHexagon", false, MakeHexagon, FloorHoneycomb);
}
void BM_CreateShow_ColorHexagon(benchmark::State& s) {
  Create(s, "create+show+destroy ColorHexagon", true, MakeHexagon, FloorHoneycomb);
}
void BM_Create_ColorCombo(benchmark::State& s) { Create(s, "create+destroy ColorCombo", false, MakeCombo, PaintCombo); }
void BM_CreateShow_ColorCombo(benchmark::State& s) {
  Create(s, "create+show+destroy ColorCombo", true, MakeCombo, PaintCombo);
}

// --- memory ---------------------------------------------------------------------------

// The heap in use, arena and mapped blocks together. Page-granular RSS hides a few kB
// per control under the pages that earlier runs freed; the allocator's own count does not.
double HeapBytes() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

// The heap each of `count` shown widgets adds, less `imageBytes` each.
double BytesPerShown(const std::function<QWidget*(QWidget*)>& make, const std::function<double(QWidget*)>& imageBytes,
                     int count) {
  QWidget holder(&Window());
  holder.show();
  Settle();
  std::vector<QWidget*> made;
  const double before = HeapBytes();
  double images = 0;
  for (int i = 0; i < count; ++i) {
    made.push_back(make(&holder));
    made.back()->show();
  }
  Settle();
  for (QWidget* widget : made) images += imageBytes(widget);
  return (HeapBytes() - before - images) / count;
}

// The drawing image as the allocator holds it: an image above its mapping threshold
// (the honeycomb's, 232 kB) is a mapping of its own, rounded up to whole pages, and
// that rounding is the image's, not the control's.
template <class Control>
double ImageOf(QWidget* widget) {
  const QImage& image = static_cast<Control*>(widget)->surface()->image();
  return static_cast<double>(malloc_usable_size(const_cast<uchar*>(image.constBits())));
}

template <class Control>
void Memory(benchmark::State& state, const char* work, const std::function<QWidget*(QWidget*)>& make) {
  constexpr int kCount = 300;
  double ours = 0;
  double combo = 0;
  for (auto _ : state) {
    // Warm both kinds first so one-time allocations are not charged to either.
    BytesPerShown(make, ImageOf<Control>, 5);
    BytesPerShown([](QWidget* p) { return new QComboBox(p); }, [](QWidget*) { return 0.0; }, 5);
    ours = BytesPerShown(make, ImageOf<Control>, kCount);
    combo = BytesPerShown([](QWidget* p) { return new QComboBox(p); }, [](QWidget*) { return 0.0; }, kCount);
  }
  state.counters["bytes"] = ours;
  state.counters["qcombobox_bytes"] = combo;
  Report({Named(work), ours / 1024.0, combo / 1024.0, "kB"});
}

void BM_Memory_ColorBox(benchmark::State& s) { Memory<ColorBox>(s, "memory per shown ColorBox", MakeGrid); }
void BM_Memory_ColorHexagon(benchmark::State& s) {
  Memory<ColorHexagon>(s, "memory per shown ColorHexagon", MakeHexagon);
}
void BM_Memory_ColorCombo(benchmark::State& s) { Memory<ColorCombo>(s, "memory per shown ColorCombo", MakeCombo); }

// --- hover ----------------------------------------------------------------------------

// The least a painted hover move costs in Qt: a widget that tracks the pointer and, on
// every move, asks for one repaint of the 12-pixel square under it, then fills it.
class PlainHover : public QWidget {
 public:
  explicit PlainHover(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void mouseMoveEvent(QMouseEvent* event) override {
    const QPoint at = event->position().toPoint();
    update(QRect(at.x() / 18 * 18 + 4, at.y() / 18 * 18 + 5, 12, 12));
  }
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(event->rect(), QColor::fromRgb(hot_ += 0x010203));
  }

 private:
  QRgb hot_ = 0;
};

// One move to `at` over `widget`, waiting for the paint it brings.
void MoveAndPaint(QWidget* widget, const PaintCounter& painted, QPoint at) {
  const int before = painted.paints;
  QTest::mouseMove(widget, at);
  while (painted.paints == before) Settle();
}

// Two neighbouring cells in the middle of the grid: the first height where a move to
// either makes that cell hot.
std::pair<QPoint, QPoint> HotCells(ColorBox& box) {
  QWidget* surface = box.surface();
  int overs = 0;
  const QMetaObject::Connection counting = QObject::connect(&box, &ColorBox::OverColor, [&] { ++overs; });
  const int x = surface->width() / 2;
  std::pair<QPoint, QPoint> cells;
  for (int y = surface->height() / 2; y < surface->height(); ++y) {
    cells = {QPoint(x - 9, y), QPoint(x + 9, y)};
    const int before = overs;
    QTest::mouseMove(surface, cells.first);
    QTest::mouseMove(surface, cells.second);
    if (overs == before + 2) break;
  }
  QObject::disconnect(counting);
  return cells;
}

// The grid and the plain widget side by side on the window, the moves timed in turn, a
// batch on each, so that a machine that slows down slows both. A grid that tracks the
// pointer holds it, so it lets go before each batch of plain moves (and takes it again
// with its next move, as it would when the pointer comes back).
void BM_Hover_Grid272(benchmark::State& state) {
  constexpr int kBatch = 100;
  std::unique_ptr<ColorBox> box(NewGrid(&Window(), cpsPalette256WithBW, true));
  box->move(0, 0);
  box->show();
  PlainHover plain(&Window());
  plain.setGeometry(QRect(QPoint(box->width() + 10, 0), QSize(290, 362)));
  plain.show();
  Settle();
  QWidget* surface = box->surface();
  const auto [first, second] = HotCells(*box);
  const QPoint cell[2] = {first, second};
  // Near the plain widget's left edge: at 2x the offscreen screen is 400 by 300 logical
  // pixels, and a pointer moved beyond it reaches no widget.
  const QPoint plainCell[2] = {QPoint(9, 181), QPoint(27, 181)};
  QCursor::setPos(surface->mapToGlobal(cell[0]));
  PaintCounter painted(surface);
  PaintCounter plainPainted(&plain);
  int next = 0;
  int moves = 0;
  double oursNs = 0;
  // Each side's time per move, batch by batch. A busy machine only ever adds time, and
  // here it adds tens of microseconds to every move of a batch (each move wakes the
  // event loop several times), so each side's fastest batch is the one that counts.
  std::vector<double> oursBatches;
  std::vector<double> plainBatches;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    MoveAndPaint(surface, painted, cell[next ^= 1]);
    const auto ns = static_cast<double>(clock.nsecsElapsed());
    oursNs += ns;
    state.SetIterationTime(ns / 1e9);
    if (++moves % kBatch != 0) continue;
    state.PauseTiming();
    oursBatches.push_back(oursNs / kBatch / 1e3);
    oursNs = 0;
    surface->releaseMouse();
    clock.restart();
    for (int i = 0; i < kBatch; ++i) MoveAndPaint(&plain, plainPainted, plainCell[i & 1]);
    plainBatches.push_back(static_cast<double>(clock.nsecsElapsed()) / kBatch / 1e3);
    state.ResumeTiming();
  }
  if (oursBatches.empty()) return;
  const double oursMicros = *std::min_element(oursBatches.begin(), oursBatches.end());
  const double plainMicros = *std::min_element(plainBatches.begin(), plainBatches.end());
  state.counters["floor_us"] = plainMicros;
  Report({Named("hover move, 272-cell grid (floor: plain QWidget)"), oursMicros, plainMicros, "us"});
}

BENCHMARK(BM_Refresh_Palette40)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Refresh_Palette256WithBW)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Refresh_Hexagon)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Create_ColorBox)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_CreateShow_ColorBox)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Create_ColorHexagon)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_CreateShow_ColorHexagon)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Create_ColorCombo)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_CreateShow_ColorCombo)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Memory_ColorBox)->Iterations(1);
BENCHMARK(BM_Memory_ColorHexagon)->Iterations(1);
BENCHMARK(BM_Memory_ColorCombo)->Iterations(1);
BENCHMARK(BM_Hover_Grid272)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(2000);

void PrintSummary() {
  std::printf("\n%-58s %10s %10s %7s\n", "work", "ours", "floor", "ratio");
  for (const Line& line : summary) {
    std::printf("%-58s %8.1f%s %8.1f%s %6.2fx\n", line.work.c_str(), line.ours, line.unit, line.floor, line.unit,
                line.ours / line.floor);
  }
}

}  // namespace

int main(int argc, char** argv) {
  // A benchmark needs no display; QT_QPA_PLATFORM or QT_SCALE_FACTOR set by the caller win.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  // The offscreen platform grabs no mouse and says so on every capture; the report
  // stays readable without it.
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtWarningMsg || !message.contains(QLatin1String("grabbing the mouse"))) {
      std::fprintf(stderr, "%s\n", qPrintable(message));
    }
  });
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  PrintSummary();
  benchmark::Shutdown();
  return 0;
}
