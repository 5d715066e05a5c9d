#!/usr/bin/env bash
# Runs every benchmark program of BUILD/bench, prints what they print, and gathers the figures in
# BUILD/bench.json: {"figures":[{"name":...,"size":...,"ratio":...}]}. A benchmark has a figure when it counts a
# "ratio" (to the plain operation in the same run) or a "number"; the others are measured by the plain operation
# of their program that stands beside them in the table below.
set -euo pipefail
build=$(cd "${1:-build}" && pwd)
export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}" LC_ALL=C.UTF-8
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The working directory holds "./Skin", as the widgets expect it.
skin="$build/bench/bin"
[ -d "$skin/Skin" ] || skin=$(cd "$(dirname "$0")/.." && pwd)
cd "$skin"
count=0
for program in "$build"/bench/benchmarks/bench_*; do
    [ -f "$program" ] && [ -x "$program" ] || continue
    name=$(basename "$program")
    echo "== $name"
    "$program" --benchmark_out="$work/$name.json" --benchmark_out_format=json
    count=$((count + 1))
done
if [ "$count" -eq 0 ]; then
    echo "There is no benchmark program in $build/bench/benchmarks; build the preset \"bench\" first." >&2
    exit 1
fi

python3 - "$build/bench.json" "$work" <<'PYTHON'
import json, pathlib, sys

measured_by = {
    "bench_copy": {"PlainInsert": ["CopyIntoEmpty", "CopyOverExisting", "ClearTargets"], "PlainErase": ["RemoveDevice"]},
    "bench_day_bar": {"MoveStep/bars:1": ["MoveStep/bars:7"]},
    "bench_day_bar_4k": {"MoveStep/bars:1": ["MoveStep/bars:7"]},
    "bench_output_editor": {
        "WalkEveryRow": ["ShowTheSameScheme", "ShowSchemesInTurn", "ShowAllAndNothingInTurn",
                         "ShowAllAndNothingInAnUnfoldedTree", "ReadAll"],
        "InsertEveryKey": ["TickAndUntickEverythingInTheEditor", "TickAndUntickEveryDoorInThePopup",
                           "TickAndUntickEveryChannelInThePopup"],
    },
}

# What costs as much for each scheme of many as of few: the processor's time for one at the greatest size to that at
# the least. (What else the machine does makes a long run slower than a short one, so not the time of day.)
grows = {"load_vs_raw": "load_growth", "save_new_vs_raw": "save_new_growth", "save_again_vs_raw": "save_again_growth"}

figures = []
per_scheme = {}
for path in sorted(pathlib.Path(sys.argv[2]).glob("*.json")):
    for run in json.loads(path.read_text())["benchmarks"]:
        value = run.get("ratio", run.get("number"))
        if value is None or run.get("error_occurred"):
            continue
        name, *rest = run["run_name"].split("/")
        size = next((int(part) for part in rest if part.isdigit()), 1)
        figures.append({"name": name, "size": size, "ratio": round(value, 5)})
        if "processor_us_per_scheme" in run and name in grows:
            per_scheme.setdefault(name, {})[size] = run["processor_us_per_scheme"]
    times = {}
    for run in json.loads(path.read_text())["benchmarks"]:
        times.setdefault(run["run_name"].split("/iterations:")[0], run["real_time"])
    for plain, operations in measured_by.get(path.stem, {}).items():
        for operation in operations:
            if operation not in times or plain not in times:
                sys.exit(f"{path.stem} does not measure {operation} and {plain}")
            ratio = times[operation] / times[plain]
            figures.append({"name": f"{path.stem}/{operation}", "size": 1, "ratio": round(ratio, 5)})
for name, sizes in per_scheme.items():
    least, greatest = min(sizes), max(sizes)
    figures.append({"name": grows[name], "size": greatest, "ratio": round(sizes[greatest] / sizes[least], 5)})
pathlib.Path(sys.argv[1]).write_text(json.dumps({"figures": figures}, indent=1) + "\n")
print()
for figure in figures:
    print("{name:<60} {size:>8} {ratio:>10.3f}".format(**figure))
print("written to", sys.argv[1])
PYTHON
