#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what a fresh Debian machine lacks, builds, and then either starts the game
# ("play") or runs every test, the sanitizer build included ("test").
set -euo pipefail
cd "$(dirname "$0")/.."

mode=${1:-play}
packages=(cmake g++ make libgtest-dev libbenchmark-dev qt6-base-dev qt6-multimedia-dev
    fonts-dejavu-core qt6-svg-dev appstream desktop-file-utils dpkg-dev file lintian
    qt6-speech-dev qt6-speech-flite-plugin qt6-declarative-dev)

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
        missing+=("$package")
done
if ((${#missing[@]})); then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends \
        "${missing[@]}"
fi

jobs=$(nproc)
build() {  # build DIR [cmake options...]
    local dir=$1
    shift
    cmake -S . -B "$dir" "$@" >/dev/null
    cmake --build "$dir" -j "$jobs"
}

case "$mode" in
play)
    build build -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF -DGILDENWAY_BENCH=OFF
    exec ./build/gildenway
    ;;
test)
    # No display here: the windows render offscreen.
    export QT_QPA_PLATFORM=offscreen
    XDG_RUNTIME_DIR=$(mktemp -d)
    export XDG_RUNTIME_DIR
    build build -DCMAKE_BUILD_TYPE=Release
    ctest --test-dir build --output-on-failure -j "$jobs"
    build build-sanitize -DCMAKE_BUILD_TYPE=RelWithDebInfo -DGILDENWAY_SANITIZE=ON \
        -DGILDENWAY_BENCH=OFF
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1 \
        ctest --test-dir build-sanitize --output-on-failure -j "$jobs"
    ;;
*)
    echo "usage: scripts/setup.sh [play|test]" >&2
    exit 2
    ;;
esac
