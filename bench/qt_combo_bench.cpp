// The colour combo beside a plain QComboBox, in one run: opening the drop-down (the
// click until its window is exposed), one hover preview (the pointer move until the
// field is repainted) and creating 1,000 of them on one form. The ratios to QComboBox
// are printed at the end.
#include "PaintCounter.h"
#include <benchmark/benchmark.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QTimer>
#include <QWindow>
#include <QtTest/QTest>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "colorbox/ColorBox.h"
#include "colorcombo/frmDropdown.h"
#include <LumoColorCombo/ColorCombo.h>
#include "qt/QtFormWindow.h"
#include "qt/QtHost.h"
#include "qt/SurfaceWidget.h"

namespace {

using LumoColorCombo::ColorCombo;
using LumoColorCombo::host::QtFormWindow;

double Seconds(const QElapsedTimer& clock) { return static_cast<double>(clock.nsecsElapsed()) / 1e9; }

bool Exposed(const QWidget* window) {
  return window != nullptr && window->isVisible() && window->windowHandle() && window->windowHandle()->isExposed();
}

void SpinUntil(const std::function<bool()>& done) {
  while (!done()) QCoreApplication::processEvents(QEventLoop::AllEvents);
}

QtFormWindow* OpenDropdown() {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<QtFormWindow*>(top);
    if (form != nullptr && form->formName() == QLatin1String("frmDropdown") && Exposed(form)) return form;
  }
  return nullptr;
}

// A form with one combo of each kind, shown.
struct Form {
  Form() {
    window.resize(300, 200);
    colorCombo->setGeometry(10, 10, 160, colorCombo->height());
    comboBox->setGeometry(10, 60, 160, 24);
    for (int i = 0; i < 40; ++i) comboBox->addItem(QStringLiteral("Colour %1").arg(i));
    window.show();
    SpinUntil([this] { return Exposed(&window); });
  }
  QWidget window;
  ColorCombo* colorCombo = new ColorCombo(&window);
  QComboBox* comboBox = new QComboBox(&window);
};

// Made on first use, gone before the application object.
std::unique_ptr<Form> shared;
Form& SharedForm() {
  if (!shared) shared = std::make_unique<Form>();
  return *shared;
}

// Opens the colour combo's drop-down and runs `inside` from within its modal loop once
// it is exposed, then closes it with Escape.
void WhileDroppedDown(const std::function<void(QtFormWindow&)>& inside) {
  ColorCombo& combo = *SharedForm().colorCombo;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    QtFormWindow* form = OpenDropdown();
    if (form == nullptr) return;
    poll.stop();
    inside(*form);
    QTest::keyClick(form->children().findSurface(QStringLiteral("ColorBox1")), Qt::Key_Escape);
  });
  poll.start(0);
  QTest::mouseClick(combo.surface(), Qt::LeftButton, {}, QPoint(20, 5));
}

void BM_OpenDropdown_ColorCombo(benchmark::State& state) {
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    WhileDroppedDown([&](QtFormWindow&) { state.SetIterationTime(Seconds(clock)); });
  }
}

void BM_OpenDropdown_QComboBox(benchmark::State& state) {
  QComboBox& combo = *SharedForm().comboBox;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    QTest::mouseClick(&combo, Qt::LeftButton);
    SpinUntil([&] { return Exposed(combo.view()->window()); });
    state.SetIterationTime(Seconds(clock));
    combo.hidePopup();
    SpinUntil([&] { return !combo.view()->window()->isVisible(); });
  }
}

// Alternates the pointer between two cells of the open grid; each move previews the
// cell's colour in the field.
void BM_HoverPreview_ColorCombo(benchmark::State& state) {
  WhileDroppedDown([&](QtFormWindow& form) {
    QWidget* grid = form.children().findSurface(QStringLiteral("ColorBox1"));
    const lumo::CColorboxCol& cells =
        *lumo::frmDropdown::Instance(LumoColorCombo::host::QtHost::instance().runtime()).ColorBox1()->Cells();
    const QPoint cell[2] = {QPoint(cells.Item(1)->BoundLeft() + 3, cells.Item(1)->BoundTop() + 3),
                            QPoint(cells.Item(2)->BoundLeft() + 3, cells.Item(2)->BoundTop() + 3)};
    PaintCounter field(SharedForm().colorCombo->surface());
    int next = 0;
    for (auto _ : state) {
      const int painted = field.paints;
      QElapsedTimer clock;
      clock.start();
      QTest::mouseMove(grid, cell[next ^= 1]);
      SpinUntil([&] { return field.paints > painted; });
      state.SetIterationTime(Seconds(clock));
    }
  });
}

// Alternates the pointer between two items of the open list; each move highlights one.
void BM_HoverPreview_QComboBox(benchmark::State& state) {
  QComboBox& combo = *SharedForm().comboBox;
  combo.showPopup();
  QWidget* list = combo.view()->viewport();
  SpinUntil([&] { return Exposed(combo.view()->window()); });
  const QPoint item[2] = {combo.view()->visualRect(combo.model()->index(1, 0)).center(),
                          combo.view()->visualRect(combo.model()->index(2, 0)).center()};
  PaintCounter viewport(list);
  int next = 0;
  for (auto _ : state) {
    const int painted = viewport.paints;
    QElapsedTimer clock;
    clock.start();
    QTest::mouseMove(list, item[next ^= 1]);
    SpinUntil([&] { return viewport.paints > painted; });
    state.SetIterationTime(Seconds(clock));
  }
  combo.hidePopup();
}

template <class Combo>
void BM_Create1000(benchmark::State& state) {
  for (auto _ : state) {
    QWidget form;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 1000; ++i) new Combo(&form);
    state.SetIterationTime(Seconds(clock));
  }
}

BENCHMARK(BM_OpenDropdown_ColorCombo)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);
BENCHMARK(BM_OpenDropdown_QComboBox)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);
BENCHMARK(BM_HoverPreview_ColorCombo)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(BM_HoverPreview_QComboBox)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(BM_Create1000<ColorCombo>)->Name("BM_Create1000_ColorCombo")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Create1000<QComboBox>)->Name("BM_Create1000_QComboBox")->UseManualTime()->Unit(benchmark::kMillisecond);

// The console report, keeping each benchmark's time per iteration for the ratios.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) seconds_[run.run_name.function_name] = run.GetAdjustedRealTime();
  }
  void PrintRatios() const {
    for (const char* what : {"OpenDropdown", "HoverPreview", "Create1000"}) {
      const auto ours = seconds_.find(std::string("BM_") + what + "_ColorCombo");
      const auto theirs = seconds_.find(std::string("BM_") + what + "_QComboBox");
      if (ours == seconds_.end() || theirs == seconds_.end()) continue;
      std::printf("%-14s ColorCombo / QComboBox = %.2f\n", what, ours->second / theirs->second);
    }
  }

 private:
  std::map<std::string, double> seconds_;
};

}  // namespace

int main(int argc, char** argv) {
  // A benchmark needs no display; QT_QPA_PLATFORM or QT_SCALE_FACTOR set by the caller win.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
  benchmark::Shutdown();
  shared.reset();
  return 0;
}
