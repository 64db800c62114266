#!/usr/bin/env bash
# Runs every benchmark binary the build produced.
set -euo pipefail
build="${1:-build}"
for b in "$build"/bench/*_bench; do
  [ -x "$b" ] || continue
  echo "== $(basename "$b")"
  if [[ "$(basename "$b")" == lumo_qt_* ]]; then QT_QPA_PLATFORM=offscreen "$b"; else "$b"; fi
done
