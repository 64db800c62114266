#pragma once

#include <memory>

#include <LumoColorCombo/lumocolorcombo_export.h>

namespace LumoColorCombo {

namespace host {
class QtHost;
}

// What the controls of one part of an application share: the error box, the timers, the
// window system, the system colour chooser and the drop-down and dialog forms they reuse.
// A widget made with just a parent uses the application's default runtime; one given a
// Runtime of its own keeps apart from every other (a test, or a plug-in that must not
// share forms with its host application). Needs a QApplication, and must outlive the
// widgets made on it.
class LUMOCOLORCOMBO_EXPORT Runtime {
 public:
  Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime();

  // The Qt host behind it, for the library's own use.
  host::QtHost& host() const { return *host_; }

 private:
  std::unique_ptr<host::QtHost> host_;
};

}  // namespace LumoColorCombo
