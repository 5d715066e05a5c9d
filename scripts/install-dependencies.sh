#!/usr/bin/env bash
# Installs the Debian packages that are missing for a purpose: build, check, bench,
# instructions, clang, qt6, package or fuzz.
set -euo pipefail

packages=(g++ cmake ninja-build qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n libsqlite3-dev libcurl4-openssl-dev libcsv-dev rapidjson-dev
    openssl python3-aiosmtpd fonts-dejavu-core fonts-noto-cjk tzdata xauth xvfb)
case "${1:-build}" in
build) ;;
check) packages+=(clang clang-format clang-tidy clazy) ;;
bench) packages+=(libbenchmark-dev python3) ;;
clang) packages+=(clang) ;;
qt6) packages+=(qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n libgl-dev) ;;
package) packages+=(appstream desktop-file-utils fakeroot file lintian mmdebstrap) ;;
instructions) packages+=(valgrind) ;;
fuzz) packages+=(clang libclang-rt-14-dev) ;;
*)
    echo "usage: $0 build|check|bench|instructions|clang|qt6|package|fuzz" >&2
    exit 2
    ;;
esac

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if ! command -v apt-get >/dev/null; then
    echo "Please install: ${missing[*]}" >&2
    exit 1
fi
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
