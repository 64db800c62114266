#pragma once

#include <functional>
#include <vector>

namespace LumoColorCombo::host {

// The drawing steps a hidden surface has been given but not yet put into its image.
// A control draws itself several times while it is made (its start, its properties,
// its first size), and each drawing begins with a clear; nobody sees any of it until
// the surface is painted or its image is read, so only the steps since the last clear
// are ever carried out, and those only then.
class PendingDrawing {
 public:
  void add(std::function<void()> step) { steps_.push_back(std::move(step)); }
  // Carries out every step in order and lets go of them.
  void run();
  // Forgets every step: the surface is about to be cleared all over.
  void drop();

 private:
  std::vector<std::function<void()>> steps_;
};

}  // namespace LumoColorCombo::host
