#!/usr/bin/env bash
# Installs what a fresh Debian machine lacks, builds, and then either starts the game
# ("play") or runs every test, the sanitizer build included ("test").
set -euo pipefail
cd "$(dirname "$0")/.."

mode=${1:-play}
packages=(cmake g++ make libgtest-dev libbenchmark-dev)

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
    build build -DCMAKE_BUILD_TYPE=Release -DGILDENWAY_TESTS=OFF
    # Until the windows land, the game runs headless: computer players to the end.
    ./build/gildenway-sim --games 1 --players 4
    ;;
test)
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
