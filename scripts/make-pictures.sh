#!/usr/bin/env bash
# Makes the pictures of docs/ from the real client, without a display:
#     make-pictures.sh [BUILD]
# or a picture of every screen in each language, on a small and on a large, finely resolved display, to look at:
#     make-pictures.sh [BUILD] --all
set -euo pipefail
cd "$(dirname "$0")/.."
build=build
all=false
for argument in "$@"; do
    case $argument in
    --all) all=true ;;
    *) build=$argument ;;
    esac
done
build=$(cd "$build" && pwd)
export LC_ALL=C.UTF-8

if ! $all; then
    QT_QPA_PLATFORM=offscreen "$build/tests/make_pictures" docs/pictures
    exit
fi

# Windows take their measure from the display, so there is one of each size.
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
for language in en zh_cn; do
    xvfb-run -a -s "-screen 0 1366x768x24" "$build/tests/make_pictures" --all --language "$language" \
        "$build/pictures/$language-1366x768"
    QT_SCALE_FACTOR=2 xvfb-run -a -s "-screen 0 3840x2160x24" "$build/tests/make_pictures" --all \
        --language "$language" --size 1920x1080 "$build/pictures/$language-3840x2160"
done
