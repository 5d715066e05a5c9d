#!/usr/bin/env bash
# Formatting, clang-tidy and clazy over our own sources; needs a finished build. Any finding fails.
#     static-checks.sh [BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
echo "clang-format: ${#sources[@]} files"
clang-format --dry-run --Werror "${sources[@]}"

# The build says how each unit is compiled, and has made the generated sources (forms, meta-objects) they read.
build=${1:-build}
mapfile -t units < <(git ls-files '*.cpp' | while read -r file; do
    grep -q "\"file\": \".*/$file\"" "$build/compile_commands.json" && echo "$file"
done)

echo "clang-tidy: ${#units[@]} units"
printf '%s\n' "${units[@]}" | xargs -P "$jobs" -n 4 clang-tidy -p "$build" --quiet \
    --header-filter="$(pwd)/(AlarmCtrl|client|platform|plugin|scheme_editor|scheme_services|tools|tests|benchmarks)/" --warnings-as-errors='*'

echo "clazy (level 1): ${#units[@]} units"
printf '%s\n' "${units[@]}" | xargs -P "$jobs" -n 8 scripts/clazy-units.sh "$build"
echo "static checks: clean"
