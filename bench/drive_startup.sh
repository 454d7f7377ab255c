#!/usr/bin/env bash
# The planner put on a drive by scripts/make_drive against the same build run from its
# build folder, in one run on one Xvfb display: time to the main window's first paint on
# the realistic sample drive (warm; the drive's run goes through its launcher, as a
# student's does), and the size of the drive's exec/ folder. Goals: the drive within 1.2x
# of the build folder, exec/ under 90 MB.
# Prints: drive: median D ms from the drive, B ms from the build folder (R x), S MB in exec/
# Usage: bench/drive_startup.sh [BUILD_DIR]   (default build-bench, the Release build of bench/run)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-bench}
runs=${QH_BENCH_RUNS:-7}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build "$build" --target quillhollow sample_drive > /dev/null
work=$(mktemp -d)
display=:$(( 80 + RANDOM % 9 ))
Xvfb "$display" -screen 0 1280x1024x24 > /dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2> /dev/null; rm -rf "$work"' EXIT
sleep 1
export DISPLAY=$display QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT=1 QT_QPA_PLATFORM=xcb
drive=$work/drive
"$build/tools/sample_drive/sample_drive" "$drive" realistic > /dev/null
scripts/make_drive "$build" "$drive"
mkdir -p "$work/host" "$work/runtime"

from_build() {
    U3_DEVICE_PATH="$drive" U3_DEVICE_EXEC_PATH="$drive/exec" U3_DEVICE_DOCUMENT_PATH="$drive/Documents" \
        U3_HOST_EXEC_PATH="$work/host" "$build/quillhollow" 2> /dev/null
}
from_drive() { XDG_RUNTIME_DIR="$work/runtime" "$drive/Quillhollow" 2> /dev/null; }
milliseconds() {
    local start end
    start=$(date +%s%N)
    "$@"
    end=$(date +%s%N)
    echo $(( (end - start) / 1000000 ))
}
median() { printf '%s\n' "$@" | sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# Taken in turns so that both meet the same state of the machine; the first pair warms
# the caches and is not counted.
build_times=() drive_times=()
for run in $(seq 0 "$runs"); do
    b=$(milliseconds from_build)
    d=$(milliseconds from_drive)
    [ "$run" -gt 0 ] && build_times+=("$b") && drive_times+=("$d")
done
b=$(median "${build_times[@]}")
d=$(median "${drive_times[@]}")
size=$(du -sm "$drive/exec" | cut -f1)
echo "drive: median $d ms from the drive, $b ms from the build folder ($(awk -v d="$d" -v b="$b" 'BEGIN { printf "%.2f", d / b }')x), $size MB in exec/"
