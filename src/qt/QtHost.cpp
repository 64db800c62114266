#include "qt/QtHost.h"

#include <QApplication>

namespace LumoColorCombo::host {
namespace {

// The application's default host. Deleted by a post routine, which QApplication runs
// first thing in its destructor, while widgets and the window system still work, so
// forms the runtime still holds can close cleanly.
QtHost* defaultHost = nullptr;

void DestroyDefaultHost() {
  delete defaultHost;
  defaultHost = nullptr;
}

}  // namespace

QtHost::QtHost()
    : runtime_(std::make_unique<lumo::Runtime>(
          lumo::HostServices{messageBox_, clock_, timers_, windows_, colorChooser_})) {}

QtHost::~QtHost() = default;

QtHost& QtHost::instance() {
  Q_ASSERT_X(qobject_cast<QApplication*>(QCoreApplication::instance()), "QtHost::instance",
             "the controls need a QApplication");
  if (!defaultHost) {
    defaultHost = new QtHost;
    qAddPostRoutine(DestroyDefaultHost);
  }
  return *defaultHost;
}

}  // namespace LumoColorCombo::host
