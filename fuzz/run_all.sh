#!/usr/bin/env bash
# Runs every fuzz target of a fuzz build for SECONDS each, on seeds made by
# the project's seed tools plus the real camera files when they are present.
set -euo pipefail
build=$1
seconds=${2:-60}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/seeds"
for tool in "$build"/tools/make_*_seeds; do
  [ -x "$tool" ] && "$tool" "$work/seeds"
done
testdata="$(dirname "$0")/../../shared/testdata"
if [ -d "$testdata" ]; then
  find "$testdata" -type f -size -4M -exec cp {} "$work/seeds/" \; 2>/dev/null || true
fi
status=0
for target in "$build"/fuzz/*_fuzz; do
  [ -x "$target" ] || continue
  name=$(basename "$target")
  mkdir -p "$work/corpus-$name"
  echo "== $name for ${seconds}s"
  if ! "$target" -max_total_time="$seconds" -max_len=262144 -rss_limit_mb=2048 -print_final_stats=1 \
      "$work/corpus-$name" "$work/seeds" 2>"$work/$name.log"; then
    tail -n 60 "$work/$name.log"
    status=1
  else
    grep -E 'stat::number_of_executed_units|Done [0-9]+ runs' "$work/$name.log" | tail -n 2
  fi
done
exit $status
