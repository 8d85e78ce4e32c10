#!/usr/bin/env bash
# Time and memory from the start to the painted main window, beside bare windows of the same size, on a
# virtual X screen: bench/start.sh [STARTS]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

tools/setup run test bench
cmake --preset release -DSORVANE_BENCH=ON >/dev/null
tools/build release sorvane bare_window start_timer >/dev/null

# The program in a folder of its own, because its records stand beside it.
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp build/release/src/sorvane "$folder"

export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$folder

xvfb-run -a -s "-screen 0 1366x768x24" \
    build/release/bench/start_timer "${1:-21}" "$folder/sorvane" build/release/bench/bare_window
