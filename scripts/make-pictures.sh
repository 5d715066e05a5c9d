#!/usr/bin/env bash
# Makes the pictures of docs/ from the real client, without a display.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build}" && pwd)
QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 "$build/tests/make_pictures" docs/pictures
