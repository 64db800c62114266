#!/usr/bin/env bash
# Starts the gallery. Without a display it runs under Qt's offscreen platform and
# writes screenshots of every control instead of opening a window.
set -euo pipefail
build="${1:-build}"
shots="${2:-screenshots}"
gallery="$build/gallery/lumo-gallery"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  mkdir -p "$shots"
  QT_QPA_PLATFORM=offscreen "$gallery" --screenshots "$shots"
  echo "Screenshots written to $shots/"
else
  "$gallery"
fi
