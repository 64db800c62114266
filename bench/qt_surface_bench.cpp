// Painting a full 272-cell palette grid on the Qt drawing surface: what every Refresh
// of the largest palette costs in pixel work.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "qt/SurfaceWidget.h"

namespace {

void PaintGrid(LumoColorCombo::host::SurfaceWidget& surface) {
  surface.Cls();
  surface.SetForeColor(lumo::sys::ButtonShadow);
  surface.SetFillStyle(lumo::fill::Solid);
  for (std::int32_t i = 0; i < 272; ++i) {
    const std::int32_t left = (i % 16) * 18 + 4;
    const std::int32_t top = (i / 16) * 18 + 5;
    surface.SetFillColor(i * 0x010203 & 0xFFFFFF);
    surface.Rectangle(left, top, left + 12, top + 12);
  }
  surface.SetFillStyle(lumo::fill::Transparent);
  surface.DrawEdge({1, 2, 19, 20}, lumo::edge::RaisedInner, lumo::edge::AllSides);
  surface.DrawEdge({19, 2, 37, 20}, lumo::edge::SunkenOuter, lumo::edge::AllSides);
}

void BM_PaintGrid272(benchmark::State& state) {
  LumoColorCombo::host::SurfaceWidget surface;
  surface.resize(296, 316);
  for (auto _ : state) {
    PaintGrid(surface);
    benchmark::DoNotOptimize(surface.image().constBits());
  }
}
BENCHMARK(BM_PaintGrid272);

}  // namespace

int main(int argc, char** argv) {
  // A benchmark needs no display; QT_QPA_PLATFORM or QT_SCALE_FACTOR set by the caller win.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
