#!/usr/bin/env bash
# Runs a command on a private X server (Xvfb) under Qt's xcb platform: how the real-desktop
# test suite (tests/x11/, CTest label "x11") runs, so that the input its tests send through
# the X server never reaches the user's own desktop.
# Where no X server can be started (Xvfb or xdotool missing, or Xvfb failing) it prints
# why and exits 77, which CTest reports as skipped; under CI (CI=true) that is a failure.
# Usage: scripts/run-on-xvfb.sh <command> [arguments...]
set -euo pipefail

unavailable() {
  if [ "${CI:-}" = "true" ]; then
    echo "run-on-xvfb: $1; CI runs the X11 suite, so this fails" >&2
    exit 1
  fi
  echo "run-on-xvfb: SKIPPED, no X server for the X11 suite: $1 (scripts/install-deps.sh installs xvfb and xdotool)" >&2
  exit 77
}

for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || unavailable "$tool is not installed"
done

work="$(mktemp -d)"
mkdir -m 700 "$work/runtime"
# -displayfd picks a free display number and writes it once the server accepts clients.
# -noreset keeps the server up when its last client leaves: a server resetting then
# refuses connections for a moment, and short-lived clients (xdotool, the accessibility
# bus's helpers) come and go while the application under test is connecting.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$work/display" >"$work/log" 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; rm -rf "$work"' EXIT

for _ in $(seq 100); do
  [ -s "$work/display" ] && break
  kill -0 "$server" 2>/dev/null || break
  sleep 0.1
done
[ -s "$work/display" ] || unavailable "Xvfb did not start: $(tail -n 3 "$work/log" | tr '\n' ' ')"

export DISPLAY=":$(head -n 1 "$work/display")"
export QT_QPA_PLATFORM=xcb
export XDG_RUNTIME_DIR="$work/runtime"
status=0
"$@" || status=$?
exit "$status"
