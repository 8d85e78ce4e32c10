#!/usr/bin/env bash
# Time and memory from the start to the painted main window, beside bare windows of the same size, on a virtual X
# screen: of the program as built, of the unpacked archive, and of the package's command with a copy that is there
# already: bench/start.sh [STARTS]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

tools/setup run test bench
cmake --preset release -DSORVANE_BENCH=ON >/dev/null
tools/build release installable bare_window start_timer >/dev/null

# Every program in a folder of its own, because its records stand beside it.
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/build" "$folder/home"
cp -R build/release/src/{sorvane,modules} "$folder/build"
for kind in TGZ DEB; do cpack --config build/release/CPackConfig.cmake -G "$kind" -B "$folder" >/dev/null 2>&1; done
tar -xzf "$folder"/sorvane-*.tar.gz -C "$folder"
dpkg-deb -x "$folder"/sorvane_*.deb "$folder/deb"
ln -s /usr/share/common-licenses "$folder/deb/usr/share"  # where the package's licence points to
sed "s#=/usr/lib#=$folder/deb/usr/lib#" "$folder/deb/usr/bin/sorvane" >"$folder/sorvane"
chmod +x "$folder/sorvane"

export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$folder HOME=$folder/home
"$folder/deb/usr/lib/sorvane/install-user" --copy
for program in "$folder/build/sorvane" "$folder"/sorvane-*-linux-*/sorvane "$folder/sorvane"; do
    echo "${program#"$folder"/}"
    xvfb-run -a -s "-screen 0 1366x768x24" \
        build/release/bench/start_timer "${1:-21}" "$program" build/release/bench/bare_window
done
