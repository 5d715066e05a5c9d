#!/usr/bin/env bash
# Runs every fuzzer of BUILD/fuzz for so many seconds, from its seeds and what earlier runs have kept. An input
# that does harm is left in BUILD/fuzz/found; as a file in tests/fuzz/found/NAME it becomes a test.
#   run-fuzzers.sh [BUILD [SECONDS]]
set -euo pipefail
build=$(cd "${1:-build}" && pwd)
seconds=${2:-60}
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
# Many small files: in memory, where there is room for them.
[ -w /dev/shm ] && export TMPDIR="${TMPDIR:-/dev/shm}"

count=0
failed=0
for program in "$build"/fuzz/fuzzers/*; do
    [ -f "$program" ] && [ -x "$program" ] || continue
    name=$(basename "$program")
    corpus="$build/fuzz/corpus/$name"
    mkdir -p "$corpus" "$build/fuzz/found"
    "$program" --seeds "$corpus"
    echo "== $name, $seconds s"
    "$program" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 \
        -artifact_prefix="$build/fuzz/found/$name-" "$corpus" >"$build/fuzz/$name.log" 2>&1 || {
        tail -n 60 "$build/fuzz/$name.log" >&2
        failed=1
    }
    grep -E '^stat::number_of_executed_units|^stat::new_units_added|^Done' "$build/fuzz/$name.log" || true
    count=$((count + 1))
done
if [ "$count" -eq 0 ]; then
    echo "There is no fuzzer in $build/fuzz/fuzzers; build the preset \"fuzz\" first." >&2
    exit 1
fi
exit $failed
