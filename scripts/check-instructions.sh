#!/usr/bin/env bash
# Counts the instructions of one load and one save of 1,000 schemes and says when one has grown by more than a
# tenth over benchmarks/instructions.txt. "--keep" writes the present counts there instead.
#   check-instructions.sh [--keep] [BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
keep=no
if [ "${1:-}" = --keep ]; then
    keep=yes
    shift
fi
program="${1:-build}/bench/benchmarks/bench_store"
kept=benchmarks/instructions.txt
scripts/install-dependencies.sh instructions
if [ ! -x "$program" ]; then
    echo "$program is missing; build the preset \"bench\" first." >&2
    exit 2
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Only what happens within the function is counted; the rest of the program prepares it.
count() {
    valgrind --tool=callgrind --callgrind-out-file="$work/out" --collect-atstart=no \
        --toggle-collect="$2" "$program" --instructions "$1" >"$work/log" 2>&1 ||
        { cat "$work/log" >&2; exit 2; }
    sed -n 's/^summary: *//p' "$work/out"
}
declare -A counted
counted[load]=$(count load 'AlarmSchemeDatabaseParser::ReadAll*')
counted[save]=$(count save 'AlarmSchemeDatabaseParser::SaveAll*')

if [ "$keep" = yes ]; then
    {
        echo "# Instructions of one load and one save of 1,000 schemes; see scripts/check-instructions.sh."
        for work_name in load save; do echo "$work_name ${counted[$work_name]}"; done
    } >"$kept"
    cat "$kept"
    exit 0
fi

grown=0
for work_name in load save; do
    now=${counted[$work_name]}
    before=$(awk -v name="$work_name" '$1 == name { print $2 }' "$kept")
    if [ -z "$before" ] || [ -z "$now" ] || [ "$now" -eq 0 ]; then
        echo "$work_name: no count" >&2
        exit 2
    fi
    echo "$work_name: $now instructions, $((now * 100 / before)) % of the kept $before"
    if [ $((now * 10)) -gt $((before * 11)) ]; then
        echo "$work_name has grown by more than a tenth." >&2
        grown=1
    fi
done
exit $grown
