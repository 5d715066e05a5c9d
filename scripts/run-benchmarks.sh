#!/usr/bin/env bash
# Runs the benchmarks of a build folder, prints what each costs beside the plain operation of the same run, and
# leaves everything in <build folder>/bench.json.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build}" && pwd)

# program, operation, the operation that it is measured by
ratios="
bench_copy CopyIntoEmpty PlainInsert
bench_copy CopyOverExisting PlainInsert
bench_copy ClearTargets PlainInsert
bench_copy RemoveDevice PlainErase
bench_day_bar MoveStep/bars:7 MoveStep/bars:1
bench_day_bar_4k MoveStep/bars:7 MoveStep/bars:1
bench_output_editor ShowTheSameScheme WalkEveryRow
bench_output_editor ShowSchemesInTurn WalkEveryRow
bench_output_editor ShowAllAndNothingInTurn WalkEveryRow
bench_output_editor ShowAllAndNothingInAnUnfoldedTree WalkEveryRow
bench_output_editor ReadAll WalkEveryRow
bench_output_editor TickAndUntickEverythingInTheEditor InsertEveryKey
bench_output_editor TickAndUntickEveryDoorInThePopup InsertEveryKey
bench_output_editor TickAndUntickEveryChannelInThePopup InsertEveryKey
"

results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT

cd "$build/bench/bin"
for program in "$build"/bench/benchmarks/bench_*; do
    [ -f "$program" ] && [ -x "$program" ] || continue
    name=$(basename "$program")
    echo "== $name"
    QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 "$program" --benchmark_out_format=json \
        --benchmark_out="$results/$name.json"
done

# The time of one operation as the program wrote it down: lines of the form "name": ..., "real_time": ...
time_of() {
    awk -F'"' -v wanted="$2" '
        $2 == "name" { name = $4 }
        $2 == "real_time" && (name == wanted || name == wanted "/iterations:" iterations(name)) {
            sub(/^[: ]+/, "", $3); sub(/,.*/, "", $3); print $3; exit
        }
        function iterations(text) { sub(/.*\/iterations:/, "", text); return text }
    ' "$results/$1.json"
}

echo "== ratios"
lines=()
while read -r name operation plain; do
    [ -n "$name" ] || continue
    costs=$(time_of "$name" "$operation")
    base=$(time_of "$name" "$plain")
    if [ -z "$costs" ] || [ -z "$base" ]; then
        echo "$name does not measure $operation and $plain" >&2
        exit 1
    fi
    ratio=$(LC_ALL=C awk -v a="$costs" -v b="$base" 'BEGIN { printf "%.2f", a / b }')
    printf '%-20s %-40s %10s x %s\n' "$name" "$operation" "$ratio" "$plain"
    lines+=("    { \"program\": \"$name\", \"operation\": \"$operation\", \"by\": \"$plain\", \"ratio\": $ratio }")
done <<<"$ratios"

{
    echo '{'
    echo '  "ratios": ['
    for i in "${!lines[@]}"; do
        [ "$i" -eq 0 ] || echo ','
        printf '%s' "${lines[$i]}"
    done
    printf '\n  ],\n  "programs": {\n'
    separator=''
    for file in "$results"/*.json; do
        printf '%s  "%s":\n' "$separator" "$(basename "$file" .json)"
        cat "$file"
        separator=','
    done
    printf '  }\n}\n'
} >"$build/bench.json.new"
mv "$build/bench.json.new" "$build/bench.json"
echo "All figures: $build/bench.json"
