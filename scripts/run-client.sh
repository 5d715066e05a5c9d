#!/usr/bin/env bash
# Starts the client from a build folder. Without a display it opens the page on the sample site on a virtual
# one, writes a picture and says where.
set -euo pipefail
build=$(cd "${1:-build}" && pwd)

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$build/bin/acs-client"
fi
picture="$build/acs-client.png"
xvfb-run -a -s "-screen 0 1920x1200x24" "$build/bin/acs-client" --data-dir "$build/sample-data" \
    --role administrator --open ACSEventConfigUI --picture "$picture"
echo "There is no display here. The client ran on a virtual one; its picture: $picture"
