#!/bin/sh
# Prints how much of the code is test code: non-blank lines of .cpp and .h files under
# tests/ against those under src/, include/ and gallery/. With --check it also fails when the
# share is above the project's limit (LUMO_TEST_SHARE_MAX, 0.38 unless set).
set -eu
cd "$(dirname "$0")/.."

lines() {
  find "$@" -type f \( -name '*.cpp' -o -name '*.h' \) -exec cat {} + 2>/dev/null | grep -c -v '^[[:space:]]*$' || true
}

tests=$(lines tests)
code=$(lines src include gallery)
max=${LUMO_TEST_SHARE_MAX:-0.38}
share=$(awk -v t="$tests" -v c="$code" 'BEGIN { printf "%.2f", (c > 0 ? t / c : 0) }')
echo "tests $tests / code $code = $share (limit $max)"

if [ "${1:-}" = "--check" ]; then
  awk -v t="$tests" -v c="$code" -v m="$max" 'BEGIN { exit !(t <= m * c) }' || {
    echo "test share above $max" >&2
    exit 1
  }
fi
