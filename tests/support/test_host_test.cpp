#include <gtest/gtest.h>

#include "colormodel/FormEvents.h"
#include "support/RecordingSurface.h"
#include "support/TestHost.h"

namespace lumo::testing {
namespace {

TEST(RecordingSurface, RecordsEachCallWithThePenAndBrushItUsed) {
  RecordingSurface surface;
  surface.SetFillColor(0x123456);
  surface.SetFillStyle(fill::Solid);
  surface.SetForeColor(sys::ButtonShadow);
  surface.Rectangle(1, 2, 13, 14);
  surface.SetFillStyle(fill::Transparent);
  surface.MoveToEx(1, 5);
  surface.LineTo(20, 5);
  surface.DrawTextA("Automatic", {3, 4, 50, 20}, textformat::Center);
  ASSERT_EQ(surface.Calls.size(), 3u);
  EXPECT_EQ(surface.Calls[0].Op, "Rectangle");
  EXPECT_EQ(surface.Calls[0].Args, (std::vector<std::int32_t>{1, 2, 13, 14}));
  EXPECT_EQ(surface.Calls[0].FillColor, 0x123456);
  EXPECT_EQ(surface.Calls[0].FillStyle, fill::Solid);
  EXPECT_EQ(surface.Calls[0].ForeColor, sys::ButtonShadow);
  EXPECT_EQ(surface.Calls[1].Args, (std::vector<std::int32_t>{1, 5, 20, 5}));
  EXPECT_EQ(surface.Calls[1].FillStyle, fill::Transparent);
  EXPECT_EQ(surface.Calls[2].Text, "Automatic");
  EXPECT_EQ(surface.Calls[2].Args.back(), textformat::Center);
}

TEST(RecordingSurface, ClsAndPrintMoveTheTextPosition) {
  RecordingSurface surface;
  surface.SetCurrentX(10);
  surface.SetCurrentY(10);
  surface.Cls();
  EXPECT_EQ(surface.CurrentX(), 0);
  surface.SetCurrentX(4);
  surface.Print("Sample");
  EXPECT_EQ(surface.CurrentX(), 0);
  EXPECT_EQ(surface.CurrentY(), surface.LineHeight);
  EXPECT_EQ(surface.CallsOf("Print").at(0).Args, (std::vector<std::int32_t>{4, 0}));
}

TEST(RecordingSurface, MoveInTwipsSetsThePixelSize) {
  RecordingSurface surface;
  surface.Move(0, 0, 146 * 15, 46 * 15);
  EXPECT_EQ(surface.ScaleWidth(), 146);
  EXPECT_EQ(surface.ScaleHeight(), 46);
  EXPECT_EQ(surface.Width(), 146 * 15);
}

struct InputRecorder : SurfaceEvents {
  std::vector<std::string> seen;
  void MouseDown(std::int16_t b, std::int16_t, double x, double y) override {
    seen.push_back("down " + std::to_string(b) + " " + std::to_string(int(x)) + "," + std::to_string(int(y)));
  }
  void MouseUp(std::int16_t b, std::int16_t, double, double) override { seen.push_back("up " + std::to_string(b)); }
  void KeyDown(std::int16_t& key, std::int16_t) override { seen.push_back("key " + std::to_string(key)); }
  void LostFocus() override { seen.push_back("lost"); }
};

TEST(RecordingSurface, DeliversInputToItsListener) {
  RecordingSurface surface;
  InputRecorder recorder;
  surface.Click(3, 4);  // no listener yet: nothing happens
  surface.SetListener(&recorder);
  surface.Click(3, 4);
  surface.Key(39);
  surface.LoseFocus();
  EXPECT_EQ(recorder.seen, (std::vector<std::string>{"down 1 3,4", "up 1", "key 39", "lost"}));
}

TEST(ManualTimers, OnlyEnabledTimersTickAndOnlyWhenFired) {
  TestHost host;
  int ticks = 0;
  auto timer = host.Timers.CreateTimer([&] { ++ticks; });
  EXPECT_EQ(host.Timers.FireEnabled(), 0);
  timer->SetInterval(500);
  timer->SetEnabled(true);
  EXPECT_EQ(host.Timers.FireEnabled(), 1);
  EXPECT_EQ(ticks, 1);
  timer.reset();
  EXPECT_TRUE(host.Timers.Live().empty());
}

struct FormLog : FormEvents {
  std::vector<std::string> seen;
  bool refuse = false;
  void Form_QueryUnload(bool& cancel, std::int32_t mode) override {
    seen.push_back("query " + std::to_string(mode));
    cancel = refuse;
  }
  void Form_Unload() override { seen.push_back("unload"); }
  void ControlClick(const std::string& control, std::int32_t index) override {
    seen.push_back("click " + control + " " + std::to_string(index));
  }
};

TEST(ScriptedWindowSystem, ModalShowRunsTheScriptAndReturnsAfterUnload) {
  TestHost host;
  FormLog log;
  host.Windows.ScriptModal("frmPopup", [](TestForm& form) { form.ClickControl("cmdButton", 1); form.Unload(); });
  auto form = host.Windows.LoadForm("frmPopup", log);
  form->Show(true);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_FALSE(host.Windows.LastForm("frmPopup")->ModalLeftOpen);
  EXPECT_EQ(log.seen, (std::vector<std::string>{"click cmdButton 1", "query 1", "unload"}));
}

TEST(ScriptedWindowSystem, TitleBarCloseReportsControlMenuAndCancelKeepsTheForm) {
  TestHost host;
  FormLog log;
  log.refuse = true;
  auto form = host.Windows.LoadForm("frmPopup", log);
  host.Windows.LastForm("frmPopup")->CloseFromTitleBar();
  EXPECT_TRUE(form->IsLoaded());
  log.refuse = false;
  host.Windows.LastForm("frmPopup")->CloseFromTitleBar();
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(log.seen, (std::vector<std::string>{"query 0", "query 0", "unload"}));
}

TEST(ScriptedWindowSystem, ModalShowWithoutUnloadReturnsAndSaysSo) {
  TestHost host;
  FormLog log;
  auto form = host.Windows.LoadForm("frmDropdown", log);
  form->Show(true);
  EXPECT_TRUE(host.Windows.LastForm("frmDropdown")->ModalLeftOpen);
}

TEST(ScriptedWindowSystem, CaptureIsTrackedAndSetCaptureAnswersThePreviousHolder) {
  TestHost host;
  EXPECT_EQ(host.Windows.SetCapture(0x10), 0u);
  EXPECT_EQ(host.Windows.SetCapture(0x20), 0x10u);
  EXPECT_EQ(host.Windows.GetCapture(), 0x20u);
  host.Windows.ReleaseCapture();
  EXPECT_EQ(host.Windows.GetCapture(), 0u);
  EXPECT_EQ(host.Windows.CaptureCalls, (std::vector<WindowHandle>{0x10, 0x20}));
}

TEST(ScriptedColorChooser, CancelRaisesOnlyWithCancelError) {
  TestHost host;
  host.Chooser.SetColor(0x111111);
  host.Chooser.ShowColor();  // cancelled quietly
  EXPECT_EQ(host.Chooser.Color(), 0x111111);
  host.Chooser.SetCancelError(true);
  EXPECT_THROW(host.Chooser.ShowColor(), RuntimeError);
  host.Chooser.NextChoice = 0x00FF00;
  host.Chooser.ShowColor();
  EXPECT_EQ(host.Chooser.Color(), 0x00FF00);
  EXPECT_EQ(host.Chooser.LastInitial, 0x111111);
}

}  // namespace
}  // namespace lumo::testing
