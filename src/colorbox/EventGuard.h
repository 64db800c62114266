#pragma once

namespace lumo {

// Holds a control's "raising an event" flag up for the life of one raise. Focus-loss
// handlers look at the flag: a host that moves the focus from inside an event handler
// (a message box, a dialog) must not turn the control's own event into a cancel.
// The previous value comes back on exit, so a raise nested in another one (a Resize
// from a Refresh made by a Click handler) leaves the outer raise still guarded, and
// a handler that throws cannot leave the flag stuck.
class EventGuard {
 public:
  explicit EventGuard(bool& flag) : flag_(flag), previous_(flag) { flag_ = true; }
  EventGuard(const EventGuard&) = delete;
  EventGuard& operator=(const EventGuard&) = delete;
  ~EventGuard() { flag_ = previous_; }

 private:
  bool& flag_;
  bool previous_;
};

}  // namespace lumo
