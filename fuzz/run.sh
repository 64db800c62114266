#!/usr/bin/env bash
# Runs every fuzz target for a while: make fuzz (FUZZ_SECONDS each, 5 minutes unless set)
# and, in CI, make fuzz-short. Each target starts from its seeds in fuzz/corpus/<target>/
# and keeps what it learns in <build>/corpus/<target>/ (the seeds stay as they are). A
# crash, a sanitizer report, a broken rule, a leak or a hang stops the run with a non-zero
# exit; the input that did it is saved as <build>/crash-... (or leak-/timeout-...), ready to
# become a regression test.
# Usage: fuzz/run.sh <build folder> <seconds per target>
set -euo pipefail
build="${1:-build-fuzz}"
seconds="${2:-300}"
here="$(cd "$(dirname "$0")" && pwd)"

for target in text_to_number hex_color property_bag; do
  mkdir -p "$build/corpus/$target"
  echo "fuzz: $target for ${seconds}s"
  log="$build/$target.log"
  status=0
  # Qt's property-bag loader needs no platform; "offscreen" keeps it from looking for one.
  QT_QPA_PLATFORM=offscreen "$build/$target" -max_total_time="$seconds" -timeout=10 \
    -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$build/" \
    "$build/corpus/$target" "$here/corpus/$target" >"$log" 2>&1 || status=$?
  if ((status)); then
    grep -v "^#[0-9]" "$log" >&2 || true
    echo "fuzz: $target failed (exit $status); the input is saved under $build/" >&2
    exit 1
  fi
  grep '^Done\|^stat::number_of_executed_units\|^stat::peak_rss_mb' "$log" || true
done
