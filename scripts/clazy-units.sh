#!/usr/bin/env bash
# clazy over some units; fails when it warns about one of our files, and when it does not run at all.
set -euo pipefail
database=$1
shift
status=0
output=$(clazy-standalone -p "$database" --checks=level1 --header-filter="$(pwd)/(AlarmCtrl|client|platform|plugin|scheme_editor|scheme_services|tools|tests|benchmarks)/" \
    --extra-arg=-Wno-unknown-warning-option "$@" 2>&1) || status=$?
if [ "$status" -ne 0 ] || grep -qE 'warning:|error:' <<<"$output"; then
    printf '%s\n' "$output" >&2
    exit 1
fi
