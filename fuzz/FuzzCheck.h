#pragma once

#include <cstdio>
#include <cstdlib>

namespace lumo::fuzz {

// A broken rule is a crash for libFuzzer: it prints what broke and aborts, and libFuzzer
// saves the input that did it.
inline void Require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "rule broken: %s\n", rule);
  std::abort();
}

}  // namespace lumo::fuzz
