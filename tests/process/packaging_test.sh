#!/usr/bin/env bash
# Installs, upgrades and removes the program in a home of its own: packaging_test.sh BUILD_FOLDER
set -euo pipefail

build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME="$work/a home of 100% \$mine"
unset XDG_DATA_HOME
mkdir "$HOME"
stage=$work/stage
program=$HOME/.local/opt/sorvane
share=$HOME/.local/share
id=org.sorvane.Sorvane

fail() {
    echo "FAILED: $1" >&2
    exit 1
}
expect() { # expect WHAT COMMAND...
    local what=$1
    shift
    "$@" || fail "$what"
}
png_side() { # width of a PNG from its header; the height must be the same
    local width height
    read -r width height < <(od -An -tu1 -j16 -N8 "$1" | awk '{ print $3 * 256 + $4, $7 * 256 + $8 }')
    [[ $width == "$height" ]] && echo "$width"
}
check_icons() { # check_icons THEME
    local size
    for size in 16 22 24 32 48 64 128 256 512; do
        expect "icon of $size" [ "$(png_side "$1/${size}x${size}/apps/$id.png")" = "$size" ]
    done
    expect "scalable icon" [ -s "$1/scalable/apps/$id.svg" ]
}

check_documents() { # check_documents FOLDER: every link of every document leads to something beside it
    local document link links=0
    expect "the player's guide" [ -s "$1/docs/user-guide.md" ]
    while IFS= read -r document; do
        while IFS= read -r link; do
            [[ -e $(dirname "$document")/$link ]] || fail "$document leads to $link, which is not there"
            links=$((links + 1))
        done < <(grep -o '](\([^)#]*\))' "$document" | sed 's/^](//; s/)$//' | grep -v '^[a-z]*:' || true)
    done < <(find "$1" -name '*.md')
    ((links > 30)) || fail "only $links links in $1"
}

echo "cmake --install lays the program and what the desktop reads"
cmake --install "$build" --prefix "$stage" >/dev/null
expect "the program" [ -x "$stage/sorvane" ]
expect "the licence" [ -s "$stage/share/doc/sorvane/LICENSE" ]
check_documents "$stage/share/doc/sorvane"
expect "no data of its own" [ ! -e "$stage/data" ]
check_icons "$stage/share/icons/hicolor"
expect "a valid desktop entry" desktop-file-validate "$stage/share/applications/$id.desktop"
expect "valid metainfo" appstreamcli validate --no-net --no-color "$stage/share/metainfo/$id.metainfo.xml"

echo "installing again over app/ keeps the player's records"
mkdir "$stage/data"
echo records >"$stage/data/sorvane.mdb"
cmake --install "$build" --prefix "$stage" >/dev/null
expect "records kept" [ "$(cat "$stage/data/sorvane.mdb")" = records ]
rm -r "$stage/data"

echo "install-user registers the program with the desktop"
"$stage/install-user" >/dev/null
expect "the same program" cmp -s "$stage/sorvane" "$program/sorvane"
check_icons "$share/icons/hicolor"
entry=$share/applications/$id.desktop
expect "a valid desktop entry" desktop-file-validate "$entry"
expect "an entry that names the program" \
    grep -qxF "Exec=\"$work/a home of 100%% \\\\\$mine/.local/opt/sorvane/sorvane\"" "$entry"
expect "valid metainfo" appstreamcli validate --no-net --no-color "$share/metainfo/$id.metainfo.xml" >/dev/null
check_documents "$program/share/doc/sorvane"
expect "a command" [ "$(readlink -f "$HOME/.local/bin/sorvane")" = "$(readlink -f "$program/sorvane")" ]

echo "an upgrade replaces the program and leaves the records alone"
mkdir "$program/data"
echo records >"$program/data/sorvane.mdb"
echo newer >>"$stage/sorvane"
echo old >"$program/share/doc/sorvane/docs/forgotten.md"
"$stage/install-user" >/dev/null
expect "no document of the older one" [ ! -e "$program/share/doc/sorvane/docs/forgotten.md" ]
expect "the newer program" cmp -s "$stage/sorvane" "$program/sorvane"
expect "records kept" [ "$(cat "$program/data/sorvane.mdb")" = records ]

echo "the installed copy does not install itself over itself"
if "$program/install-user" 2>/dev/null; then fail "it did"; fi
expect "the program is still there" [ -x "$program/sorvane" ]

echo "removing takes all but the records"
"$program/install-user" --remove >/dev/null
left=$(cd "$HOME" && find . \( -type f -o -type l \) ! -name '*.cache' | sort)
expect "only the records are left, not: $left" [ "$left" = ./.local/opt/sorvane/data/sorvane.mdb ]

echo "without records nothing is left"
rm -r "$program/data"
"$stage/install-user" >/dev/null
"$program/install-user" --remove >/dev/null
expect "the folder is gone" [ ! -e "$program" ]

echo "the portable archive holds one folder that stands by itself"
cpack --config "$build/CPackConfig.cmake" -B "$work/dist" >/dev/null
tar -xzf "$work"/dist/sorvane-*.tar.gz -C "$work/dist"
folders=("$work"/dist/sorvane-*/)
expect "one folder" [ ${#folders[@]} = 1 ]
expect "the program" [ -x "${folders[0]}sorvane" ]
check_documents "${folders[0]}share/doc/sorvane"
"${folders[0]}install-user" >/dev/null
expect "installed from the archive" cmp -s "${folders[0]}sorvane" "$program/sorvane"
