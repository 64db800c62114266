// A full Refresh of the largest palette: reload 272 cells, name the unnamed ones,
// size, and paint every cell, both buttons and the row gap.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxEvents.h"
#include "colormodel/Clock.h"
#include "colormodel/ColorChooser.h"
#include "colormodel/ControlSite.h"
#include "colormodel/DrawingSurface.h"
#include "colormodel/Enums.h"
#include "colormodel/FormWindow.h"
#include "colormodel/HostTimer.h"
#include "colormodel/MessageBox.h"
#include "colormodel/Runtime.h"
#include "colormodel/WindowSystem.h"

namespace {

using lumo::OLE_COLOR;
using lumo::Point;
using lumo::Rect;
using lumo::WindowHandle;

// A surface that draws nothing: what is measured is the control's own work.
class NullSurface : public lumo::DrawingSurface {
 public:
  WindowHandle hWnd() const override { return 1; }
  std::int32_t ScaleWidth() const override { return width_; }
  std::int32_t ScaleHeight() const override { return height_; }
  void Move(std::int32_t, std::int32_t, std::int32_t width, std::int32_t height) override {
    width_ = width / lumo::TwipsPerPixel;
    height_ = height / lumo::TwipsPerPixel;
  }
  double TextWidth(const std::string& text) const override { return 6.0 * static_cast<double>(text.size()); }
  double TextHeight(const std::string&) const override { return 13.0; }
  void PaintPicture(const DrawingSurface&, std::int32_t, std::int32_t) override {}
  void Refresh() override {}
  void Rectangle(std::int32_t, std::int32_t, std::int32_t, std::int32_t) override {}
  void Polygon(const std::vector<Point>&) override {}
  void DrawEdge(const Rect&, std::int32_t, std::int32_t) override {}
  void DrawFocusRect(const Rect&) override {}
  void DrawTextA(const std::string&, const Rect&, std::int32_t) override {}

 protected:
  void ClearSurface() override {}
  void DrawLine(Point, Point) override {}
  void DrawPrintedText(double, double, const std::string&) override {}

 private:
  std::int32_t width_ = 200;
  std::int32_t height_ = 200;
};

class NullSite : public lumo::ControlSite {
 public:
  std::int32_t Width() const override { return 0; }
  std::int32_t Height() const override { return 0; }
  void Size(std::int32_t, std::int32_t) override {}
};

class SilentBox : public lumo::MessageBox {
 public:
  std::int32_t MsgBox(const std::string&, std::int32_t, const std::string&) override { return 1; }
};

class StillClock : public lumo::Clock {
 public:
  double Timer() const override { return 36000.0; }
};

class IdleTimer : public lumo::HostTimer {
 public:
  std::int32_t Interval() const override { return interval_; }
  void SetInterval(std::int32_t milliseconds) override { interval_ = milliseconds; }
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override { enabled_ = enabled; }

 private:
  std::int32_t interval_ = 0;
  bool enabled_ = false;
};

class IdleTimers : public lumo::TimerService {
 public:
  std::unique_ptr<lumo::HostTimer> CreateTimer(std::function<void()>) override {
    return std::make_unique<IdleTimer>();
  }
};

class NoWindows : public lumo::WindowSystem {
 public:
  std::unique_ptr<lumo::FormWindow> LoadForm(const std::string&, lumo::FormEvents&) override { return nullptr; }
  std::int32_t ScreenWidth() const override { return 0; }
  std::int32_t ScreenHeight() const override { return 0; }
  WindowHandle SetCapture(WindowHandle) override { return 0; }
  WindowHandle GetCapture() const override { return 0; }
  bool ReleaseCapture() override { return true; }
  WindowHandle GetActiveWindow() const override { return 0; }
  WindowHandle GetFocus() const override { return 0; }
  Point ClientToScreen(WindowHandle, Point point) const override { return point; }
  void DoEvents() override {}
};

class NoChooser : public lumo::ColorChooser {
 protected:
  bool RunDialog(OLE_COLOR, OLE_COLOR&) override { return false; }
};

void BM_ColorBoxRefreshPalette256WithBW(benchmark::State& state) {
  SilentBox messages;
  StillClock clock;
  IdleTimers timers;
  NoWindows windows;
  NoChooser chooser;
  lumo::Runtime runtime(lumo::HostServices{messages, clock, timers, windows, chooser});
  NullSurface surface;
  NullSite site;
  lumo::ColorBoxEvents events;
  lumo::ColorBox box(runtime, surface, site, events);
  box.SetPickStyle(lumo::cpsPalette256WithBW);
  for (auto _ : state) {
    box.Refresh();
    benchmark::DoNotOptimize(box.Cells());
  }
}
BENCHMARK(BM_ColorBoxRefreshPalette256WithBW);

}  // namespace
