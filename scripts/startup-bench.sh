#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures the desktop program on a virtual X display: the time from start to the first
# painted set-up window (several runs), and the peak memory and duration of a whole game
# of six computer players played by the real program with its windows up.
#   scripts/startup-bench.sh [BUILD_DIR] [RUNS]
set -euo pipefail

build=${1:-build-app}
runs=${2:-10}
program="$build/gildenway"
[[ -x $program ]] || { echo "no program at $program: build the gildenway target" >&2; exit 1; }

display=:$((90 + RANDOM % 100))
Xvfb "$display" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
xvfb_pid=$!
trap 'kill "$xvfb_pid" 2>/dev/null || true' EXIT
for _ in $(seq 50); do
    xdpyinfo -display "$display" >/dev/null 2>&1 && break
    [[ -e /tmp/.X11-unix/X${display#:} ]] && break
    sleep 0.1
done
export DISPLAY=$display QT_QPA_PLATFORM=xcb
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}

echo "Start-up to the first painted window, $runs runs on Xvfb:"
paint_ms=()
wall_ms=()
for _ in $(seq "$runs"); do
    start=$(date +%s%N)
    out=$("$program" --quit-when-shown 2>/dev/null)
    end=$(date +%s%N)
    paint_ms+=("$(sed -n 's/^first paint after \([0-9]*\) ms$/\1/p' <<<"$out")")
    wall_ms+=($(((end - start) / 1000000)))
done
median() { printf '%s\n' "$@" | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
echo "  first paint after main(): median $(median "${paint_ms[@]}") ms (${paint_ms[*]})"
echo "  whole process:            median $(median "${wall_ms[@]}") ms (${wall_ms[*]})"

tick=${GILDENWAY_BENCH_TICK_MS:-0}
echo "A game of six computer players (seed 1, tick $tick ms), peak memory:"
/usr/bin/time -v "$program" --computers 6 --seed 1 --tick-ms "$tick" 2>"$build/bench-time.txt" >/dev/null
grep -E "Maximum resident set size|Elapsed \(wall clock\)|Exit status" "$build/bench-time.txt" |
    sed 's/^\s*/  /'
