#!/usr/bin/env bash
# What the suite does a fiftieth of, as a whole: faults of disks, processes and power during saves, clients that
# save against each other, random maps and strange files beside the literal statements, and strange files under
# the sanitizers of BUILD/asan. Prints a table, also into BUILD/soak.md; ends with 1 when anything fails.
#   soak.sh [BUILD]
set -uo pipefail
build=$(cd "${1:-build}" && pwd) || exit 2
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 ACS_SOAK=1 QTEST_FUNCTION_TIMEOUT=36000000
export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
# Many small files: in memory, where there is room for them.
[ -w /dev/shm ] && export TMPDIR="${TMPDIR:-/dev/shm}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
failed=0

# run TITLE PROGRAM ARGUMENTS...: a line of the table for everything that the program tells.
run() {
    local title=$1 start=$SECONDS
    shift
    if "$@" >"$log" 2>&1; then result=passed; else result=FAILED failed=1; cat "$log" >&2; fi
    local took="$(((SECONDS - start + 59) / 60)) min"
    sed -nE "s/^QINFO *: [A-Za-z]+::([A-Za-z]+)\(([^)]*)\) (.*)/| $title | \3; \2 | $result | $took |/p" "$log" |
        sed 's/;  |/ |/'
    sed -nE "s/^([0-9]+ random maps.*)/| $title | \1 | $result | $took |/p" "$log"
    [ $result = passed ] || echo "| $title | | $result | $took |"
}

{
    echo '| Subject | What was done | Result | Time of the program |'
    echo '|---|---|---|---|'
    run 'disk failures' "$build/tests/tst_store_io_errors"
    run 'power loss' "$build/tests/tst_store_power_loss"
    run 'processes' "$build/tests/tst_store_processes"
    run 'two clients' "$build/tests/tst_scheme_store_saving" noUpdateIsLostBetweenTwoClients
    run 'literal statements' "$build/tests/oracle_soak" 1000
    run 'strange files, sanitized' "$build/asan/tests/tst_store_strange_files"
    [ $failed -eq 0 ]
} | tee "$build/soak.md"
exit "${PIPESTATUS[0]}"
