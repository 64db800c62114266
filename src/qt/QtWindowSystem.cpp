#include "qt/QtWindowSystem.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include "qt/AboutDialog.h"
#include "qt/QtFormWindow.h"
#include "qt/Twips.h"
#include "qt/WidgetHandles.h"

namespace LumoColorCombo::host {
namespace {

QSize ScreenSize() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->geometry().size() : QSize();
}

}  // namespace

std::unique_ptr<lumo::FormWindow> QtWindowSystem::LoadForm(const std::string& name, lumo::FormEvents& events) {
  return designs_.load(name, events);
}

std::int32_t QtWindowSystem::ScreenWidth() const { return Twips::fromPixels(ScreenSize().width()); }
std::int32_t QtWindowSystem::ScreenHeight() const { return Twips::fromPixels(ScreenSize().height()); }

lumo::WindowHandle QtWindowSystem::SetCapture(lumo::WindowHandle window) {
  const lumo::WindowHandle previous = GetCapture();
  if (QWidget* widget = WidgetHandles::widgetOf(window)) capture_.take(*widget);
  return previous;
}

lumo::WindowHandle QtWindowSystem::GetCapture() const { return WidgetHandles::handleOf(QWidget::mouseGrabber()); }

bool QtWindowSystem::ReleaseCapture() {
  capture_.release();
  return true;
}

// Qt never activates a popup, yet while one is open it has the user's attention.
lumo::WindowHandle QtWindowSystem::GetActiveWindow() const {
  if (QWidget* popup = QApplication::activePopupWidget()) return WidgetHandles::handleOf(popup);
  return WidgetHandles::handleOf(QApplication::activeWindow());
}

lumo::WindowHandle QtWindowSystem::GetFocus() const { return WidgetHandles::handleOf(QApplication::focusWidget()); }

lumo::Point QtWindowSystem::ClientToScreen(lumo::WindowHandle window, lumo::Point point) const {
  const QWidget* widget = WidgetHandles::widgetOf(window);
  if (!widget) return point;
  const QPoint screen = widget->mapToGlobal(QPoint(point.X, point.Y));
  return {screen.x(), screen.y()};
}

void QtWindowSystem::DoEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

void QtWindowSystem::ShowAboutBox(lumo::WindowHandle owner) { AboutDialog::run(WidgetHandles::widgetOf(owner)); }

}  // namespace LumoColorCombo::host
