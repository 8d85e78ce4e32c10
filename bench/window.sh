#!/usr/bin/env bash
# Opening frm649 from the menu beside a bare dialog with as many controls, on a virtual X screen:
# bench/window.sh [OPENINGS]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

tools/setup run test bench
cmake --preset release -DSORVANE_BENCH=ON >/dev/null
tools/build release bench_window >/dev/null

export LC_ALL=C.UTF-8
tools/with-xvfb build/release/bench/bench_window "$@"
