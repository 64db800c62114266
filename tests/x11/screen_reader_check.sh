#!/usr/bin/env bash
# The screen-reader check on the X server run-on-xvfb.sh started: a private D-Bus session
# (the AT-SPI bus and registry start on it on demand) and Debian's AT-SPI client.
# Missing tools fail the check: only a missing X server is a skip.
# Usage: screen_reader_check.sh <screen reader app>
set -euo pipefail
command -v dbus-run-session >/dev/null || { echo "dbus-run-session is missing (package dbus)" >&2; exit 1; }
/usr/bin/python3 -c "import pyatspi" || { echo "pyatspi is missing (package python3-pyatspi)" >&2; exit 1; }
exec dbus-run-session -- /usr/bin/python3 "$(dirname "$0")/screen_reader_check.py" "$1"
