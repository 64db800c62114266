#!/usr/bin/env bash
# Runs a command as a screen reader's session sees it, on the X server run-on-xvfb.sh
# started: a private D-Bus session with the AT-SPI bus started on it (Qt's bridge turns
# on only once that bus is there) and Qt's accessibility forced on, as
# QT_LINUX_ACCESSIBILITY_ALWAYS_ON does for a reader that does not say it is one.
# Missing tools fail: only a missing X server is a skip.
# Usage: screen_reader_bus.sh <command> [arguments...]
set -euo pipefail
if [ -z "${DBUS_SESSION_BUS_ADDRESS:-}" ] || [ -z "${LUMO_PRIVATE_BUS:-}" ]; then
  command -v dbus-run-session >/dev/null || { echo "dbus-run-session is missing (package dbus)" >&2; exit 1; }
  LUMO_PRIVATE_BUS=1 exec dbus-run-session -- "$0" "$@"
fi
# Asking for its address starts the AT-SPI bus (package at-spi2-core).
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
exec "$@"
