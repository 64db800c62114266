#!/usr/bin/env bash
# Runs every benchmark binary the build produced. The Qt benchmarks run under the
# offscreen platform; the one that sets the controls beside their plain-Qt floor runs
# again at a device pixel ratio of 2.
set -euo pipefail
build="${1:-build}"
for b in "$build"/bench/*_bench; do
  [ -x "$b" ] || continue
  echo "== $(basename "$b")"
  if [[ "$(basename "$b")" == lumo_qt_* ]]; then QT_QPA_PLATFORM=offscreen "$b"; else "$b"; fi
  if [[ "$(basename "$b")" == lumo_qt_floor_bench ]]; then
    echo "== $(basename "$b") at 2x"
    QT_SCALE_FACTOR=2 QT_QPA_PLATFORM=offscreen "$b"
  fi
done
