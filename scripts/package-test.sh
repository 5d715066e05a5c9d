#!/usr/bin/env bash
# Builds the Debian packages, checks them, installs them into a clean root, uses them there as an ordinary user and
# removes them again; nothing but that user's data may stay behind. Needs root (or sudo) for the clean root.
#     package-test.sh [BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build}" && pwd)
place=$build/package-test
packages=$place/packages
unpacked=$place/unpacked
root=$place/root
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)

say() { echo "package-test: $*"; }
fail() {
    say "FAILED: $*" >&2
    exit 1
}

say "building the packages"
"${as_root[@]}" rm -rf "$packages" "$unpacked" "$root"
mkdir -p "$packages" "$unpacked"
(cd "$build" && cpack -G DEB -B "$packages" >"$packages/cpack.log") || {
    cat "$packages/cpack.log" >&2
    fail "cpack"
}
client=$(ls "$packages"/acs-client_*.deb)
kit=$(ls "$packages"/acs-client-dev_*.deb)

say "lintian"
lintian --allow-root --fail-on error --tag-display-limit 0 "$client" "$kit"

say "menu entry and description"
dpkg-deb -x "$client" "$unpacked"
dpkg-deb -x "$kit" "$unpacked"
desktop-file-validate "$unpacked/usr/share/applications/acs-client.desktop"
appstreamcli validate --no-net "$unpacked/usr/share/metainfo/acs-client.metainfo.xml"
for page in acs-client acs-scheme; do
    warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l "$unpacked/usr/share/man/man1/$page.1.gz" 2>&1 >/dev/null)
    [ -z "$warnings" ] || fail "the manual page of $page: $warnings"
done

say "a page of another author, built from the packages"
cmake -S "$unpacked/usr/share/doc/acs-client-dev/examples/minimal_module" -B "$place/minimal_module" -G Ninja --fresh \
    -D CMAKE_PREFIX_PATH="$unpacked/usr" >"$packages/example.log"
cmake --build "$place/minimal_module" >>"$packages/example.log" || {
    cat "$packages/example.log" >&2
    fail "the example"
}

# The clean root holds what the package says it depends on and nothing more. It is kept for as long as that stays.
depends=$(dpkg-deb -f "$client" Depends)
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
clean=$place/clean-$(echo "$release $depends" | sha256sum | cut -c1-16).tar
if [ ! -f "$clean" ]; then
    say "making a clean root ($release)"
    rm -f "$place"/clean-*.tar
    # The same sources as this machine's.
    mapfile -t known < <(find /etc/apt/sources.list /etc/apt/sources.list.d \( -name '*.list' -o -name '*.sources' \) \
        -type f -size +0 2>/dev/null)
    "${as_root[@]}" env DEPENDS="$depends" mmdebstrap --quiet --variant=minbase \
        --customize-hook='chroot "$1" apt-get -qq -y --no-install-recommends satisfy "$DEPENDS" >/dev/null' \
        "$release" "$place/unfinished.tar" "${known[@]}"
    mv "$place/unfinished.tar" "$clean"
fi
mkdir -p "$root"
"${as_root[@]}" tar -C "$root" -xpf "$clean"

# in_root USER COMMAND...: in namespaces of its own, so that its /proc goes with it.
in_root() {
    local user=$1
    shift
    "${as_root[@]}" unshare --mount --pid --net --fork sh -c '
        mount -t proc proc "$0/proc" && exec chroot --userspec="$1" "$0" "$2" -c "$3"' "$root" "$user" /bin/sh "$*"
}
# Every file with its content, every link and folder, but for the user's home and the book-keeping of dpkg.
contents() {
    (cd "$root" && "${as_root[@]}" find . \( -path ./proc -o -path ./sys -o -path ./dev -o -path ./home/guard \
        -o -path ./var/lib/dpkg -o -path ./var/log -o -path ./var/cache/ldconfig \) -prune -o \
        \( -type f -exec sha256sum {} + -o -printf '%y %p %l\n' \)) | sort
}

"${as_root[@]}" mkdir -p "$root/home/guard" "$root/packages"
"${as_root[@]}" cp "$client" "$root/packages/client.deb"
"${as_root[@]}" chown 1000:1000 "$root/home/guard"
contents >"$place/before.txt"

say "installing"
in_root 0:0 'dpkg -i /packages/client.deb >/dev/null'
contents >"$place/installed.txt"
cmp -s "$place/before.txt" "$place/installed.txt" && fail "nothing was installed"

say "using it"
environment='cd / && export HOME=/home/guard LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/home/guard/run;
    mkdir -p -m 700 /home/guard/run;'
in_root 1000:1000 "$environment cd /home/guard && acs-client --open ACSEventConfigUI --picture window.png"
file -b "$root/home/guard/window.png" | grep -q '^PNG image data' || fail "the client drew no picture"
log=$root/home/guard/.local/share/acs-client/acs-client.log
grep -q 'module ACSEventConfigUI loaded' "$log" || fail "the client did not load its module"
if grep -E ' (ERROR|WARNING) ' "$log"; then
    fail "the client complains"
fi
in_root 1000:1000 "$environment acs-scheme make-site --doors 5 --output /home/guard/made.json"
grep -q '"devices"' "$root/home/guard/made.json" || fail "acs-scheme made no site"
in_root 1000:1000 "$environment acs-scheme --help" >/dev/null
contents >"$place/used.txt"
diff "$place/installed.txt" "$place/used.txt" || fail "using it changed what is installed"

say "removing it"
in_root 0:0 'dpkg --purge acs-client >/dev/null'
contents >"$place/after.txt"
diff "$place/before.txt" "$place/after.txt" || fail "something stays behind"
[ -s "$root/home/guard/.local/share/acs-client/site.json" ] || fail "the user's data went with it"

"${as_root[@]}" rm -rf "$root"
say "passed"
