#pragma once

#include <memory>
#include <utility>

namespace lumo {

// Holds a flag up for a scope and lowers it on the way out, unless the object that
// owns the flag died meanwhile (its liveness token expired): a host may destroy a
// control from inside a modal show or an event handler that the scope runs.
class FlagWhileAlive {
 public:
  FlagWhileAlive(bool& flag, std::weak_ptr<bool> alive) : flag_(flag), alive_(std::move(alive)) { flag_ = true; }
  FlagWhileAlive(const FlagWhileAlive&) = delete;
  FlagWhileAlive& operator=(const FlagWhileAlive&) = delete;
  ~FlagWhileAlive() {
    if (!alive_.expired()) flag_ = false;
  }

 private:
  bool& flag_;
  std::weak_ptr<bool> alive_;
};

}  // namespace lumo
