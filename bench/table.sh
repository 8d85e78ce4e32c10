#!/usr/bin/env bash
# Every figure of speed beside its floor, and how it grows with the records; then the ways to the main window and
# to a game window: bench/table.sh [ROUNDS]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

tools/setup run test bench
cmake --preset release -DSORVANE_BENCH=ON >/dev/null
tools/build release bench_table >/dev/null

build/release/bench/bench_table "${1:-15}"
echo
bench/window.sh
echo
bench/start.sh
