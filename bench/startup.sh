#!/usr/bin/env bash
# Time from process start to the main window first painted, warm, on a realistic and a
# maximal sample drive, on one Xvfb display, beside a bare Qt window (bench/bare_window.cpp)
# started on the same display in the same rounds. Each run ends right after its first paint
# (the planner when QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT is set), so its wall time is that span
# plus the exit. The rounds interleave the three programs, so a busy moment of a shared
# machine falls on all of them; the ratio is the median of each round's planner time over
# that round's bare window. Goals: the realistic drive at most 1.5x the bare window, the
# maximal one at most 3x.
# Usage: bench/startup.sh [BUILD_DIR]   (default build-bench, the Release build of bench/run)
#        QH_STARTUP_ROUNDS (11 by default) rounds are counted, after one that warms the caches.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-bench}
rounds=${QH_STARTUP_ROUNDS:-11}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DQH_BUILD_BENCH=ON > /dev/null
cmake --build "$build" --target quillhollow sample_drive bare_window > /dev/null
work=$(mktemp -d)
display=:$(( 90 + RANDOM % 9 ))
Xvfb "$display" -screen 0 1280x1024x24 > /dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2> /dev/null; rm -rf "$work"' EXIT
sleep 1
export DISPLAY=$display
sizes=(realistic maximal)
for size in "${sizes[@]}"; do
    "$build/tools/sample_drive/sample_drive" "$work/$size" "$size" > /dev/null
    mkdir -p "$work/$size/exec" "$work/host-$size"
done

# Milliseconds from the start of the command to its end.
timed() {
    local start end
    start=$(date +%s%N)
    "$@" 2> /dev/null
    end=$(date +%s%N)
    echo $(( (end - start) / 1000000 ))
}
planner() {
    U3_DEVICE_PATH="$work/$1" U3_DEVICE_EXEC_PATH="$work/$1/exec" U3_DEVICE_DOCUMENT_PATH="$work/$1/Documents" \
    U3_HOST_EXEC_PATH="$work/host-$1" QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT=1 "$build/quillhollow"
}

declare -A times ratios
for (( round = 0; round <= rounds; round++ )); do
    bare=$(timed "$build/bench/bare_window")
    for size in "${sizes[@]}"; do
        ms=$(timed planner "$size")
        rm -f "$work/host-$size"/*.PID
        # The first round warms the caches and is not counted.
        if (( round > 0 )); then
            times[$size]+="$ms "
            ratios[$size]+="$(awk -v a="$ms" -v b="$bare" 'BEGIN { printf "%.2f", a / (b > 0 ? b : 1) }') "
        fi
    done
    (( round > 0 )) && times[bare]+="$bare "
done

median() { printf '%s\n' $1 | sort -g | awk '{ v[NR] = $1 } END { print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2) }'; }
echo "bare: median $(median "${times[bare]}") ms to the first paint (runs: ${times[bare]% } ms)"
for size in "${sizes[@]}"; do
    echo "$size: median $(median "${times[$size]}") ms to the first paint," \
         "$(median "${ratios[$size]}")x the bare window (runs: ${times[$size]% } ms)"
done
