#!/usr/bin/env bash
# Formatting, clang-tidy and clazy over our own sources. Any finding fails.
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
echo "clang-format: ${#sources[@]} files"
clang-format --dry-run --Werror "${sources[@]}"

cmake --preset tidy >/dev/null
# The generated sources (forms, meta-objects, export headers) must exist before a tool can read ours.
cmake --build build/tidy --target generated_sources >/dev/null
mapfile -t units < <(git ls-files '*.cpp' | while read -r file; do
    grep -q "\"file\": \".*/$file\"" build/tidy/compile_commands.json && echo "$file"
done)

echo "clang-tidy: ${#units[@]} units"
printf '%s\n' "${units[@]}" | xargs -P "$jobs" -n 4 clang-tidy -p build/tidy --quiet --warnings-as-errors='*'

echo "clazy (level 1): ${#units[@]} units"
printf '%s\n' "${units[@]}" | xargs -P "$jobs" -n 8 scripts/clazy-units.sh build/tidy
echo "static checks: clean"
