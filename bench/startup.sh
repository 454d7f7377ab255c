#!/usr/bin/env bash
# Time from process start to the main window first painted, warm, on a realistic and a
# maximal sample drive, on one Xvfb display. The program ends right after its first paint when
# QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT is set, so each run's wall time is that span (plus
# the exit). Goals: under 200 ms on the realistic drive, under 500 ms on the maximal one.
# Usage: bench/startup.sh [BUILD_DIR]   (default build-bench, the Release build of bench/run)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-bench}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build "$build" --target quillhollow sample_drive > /dev/null
work=$(mktemp -d)
display=:$(( 90 + RANDOM % 9 ))
Xvfb "$display" -screen 0 1280x1024x24 > /dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2> /dev/null; rm -rf "$work"' EXIT
sleep 1
export DISPLAY=$display
for size in realistic maximal; do
    "$build/tools/sample_drive/sample_drive" "$work/$size" "$size" > /dev/null
    mkdir -p "$work/$size/exec" "$work/host-$size"
    times=()
    for run in 1 2 3 4 5 6; do
        start=$(date +%s%N)
        U3_DEVICE_PATH="$work/$size" U3_DEVICE_EXEC_PATH="$work/$size/exec" \
        U3_DEVICE_DOCUMENT_PATH="$work/$size/Documents" U3_HOST_EXEC_PATH="$work/host-$size" \
        QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT=1 "$build/quillhollow" 2> /dev/null
        end=$(date +%s%N)
        rm -f "$work/host-$size"/*.PID
        # The first run warms the caches and is not counted.
        [ "$run" -gt 1 ] && times+=($(( (end - start) / 1000000 )))
    done
    sorted=($(printf '%s\n' "${times[@]}" | sort -n))
    echo "$size: median ${sorted[2]} ms to the first paint (runs: ${times[*]} ms)"
done
