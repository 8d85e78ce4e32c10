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

echo "every page names the same version"
source=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$build/CMakeCache.txt")
version=$(sed -n 's/^project(sorvane VERSION \([0-9.]*\).*/\1/p' "$source/CMakeLists.txt")
expect "a release in the metainfo" grep -q "<release version=\"$version\"" "$stage/share/metainfo/$id.metainfo.xml"
expect "the newest entry of Debian's changelog" \
    [ "$(sed -n '1s/^sorvane (\(.*\)-1) .*/\1/p' "$source/packaging/debian/changelog")" = "$version" ]
expect "the newest entry of the changes" [ "$(sed -n 's/^## \([0-9.]*\).*/\1/p' "$source/CHANGELOG.md" | head -n 1)" = "$version" ]
expect "the manual page" grep -q "\"Sorvane $version\"" "$stage/share/man/man6/sorvane.6"

# Starts a program without a screen, waits until it runs from its folder and its records stand, and ends it:
# start FOLDER PROGRAM [ARGUMENT]
start() {
    local folder=$1 process tries=0
    shift
    QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work "$@" &
    process=$!
    until [[ $(readlink "/proc/$process/exe") == "$folder/sorvane" && -n $(sqlite3 "file:$folder/data/sorvane.mdb?mode=ro" ".tables Winnings" 2>/dev/null) ]]; do
        ((++tries < 600)) && kill -0 "$process" 2>/dev/null || fail "$1 does not start"
        sleep 0.1
    done
    mapped=$(sed -n 's#^[^/]*\(/.*\)#\1#p' "/proc/$process/maps" | sort -u)
    kill "$process"
    wait "$process" 2>/dev/null || true
}

echo "a start loads no plugin that reads pictures"
mkdir "$work/plain"
cp "$stage/sorvane" "$work/plain"
start "$work/plain" "$work/plain/sorvane"
expect "something mapped" grep -q libQt6Widgets <<<"$mapped"
if grep -E '/(imageformats|iconengines)/' <<<"$mapped"; then fail "it loads these"; fi

echo "the archive holds one folder that stands by itself"
# Packed with another program than a release, which takes its time.
cpack --config "$build/CPackConfig.cmake" -G TGZ -B "$work/dist" >/dev/null
tar -xzf "$work"/dist/sorvane-"$version"-linux-*.tar.gz -C "$work/dist"
folders=("$work"/dist/sorvane-*/)
expect "one folder" [ ${#folders[@]} = 1 ]
archive=${folders[0]%/}
expect "the program" [ -x "$archive/sorvane" ]
check_documents "$archive/share/doc/sorvane"

# What is bundled is found in the folder, and Qt nowhere else: check_libraries FILE (with the paths of its libraries)
check_libraries() {
    local name path
    while read -r name _ path _; do
        [[ $path != not ]] || fail "$1 does not find $name"
        if [[ -e $archive/lib/$name ]]; then
            [[ $path == "$archive/lib/$name" ]] || fail "$1 takes $name from $path"
        else
            [[ $name != libQt6* && $name != libicu* && $name != libsqlite3* ]] || fail "$name is not bundled"
        fi
    done < <("${@:2}" ldd "$1")
}
check_libraries "$archive/sorvane"
plugins=0
while IFS= read -r plugin; do
    check_libraries "$plugin" env LD_LIBRARY_PATH="$archive/lib"
    plugins=$((plugins + 1))
done < <(find "$archive/plugins" -name '*.so')
expect "all plugins" [ "$plugins" = 10 ]
start "$archive" env -u LD_LIBRARY_PATH "$archive/sorvane"
expect "its own Qt" grep -qxF "$archive/lib/libQt6Widgets.so.6" <<<"$mapped"
"$archive/sorvane-records" check >/dev/null || fail "sorvane-records beside it"
expect "its own plugin of the screen" grep -qxF "$archive/plugins/platforms/libqoffscreen.so" <<<"$mapped"
if grep '/libQt6' <<<"$mapped" | grep -vF "$archive/"; then fail "Qt of the system"; fi
rm -r "$archive/data"

echo "every bundled file has its licence"
while IFS= read -r file; do
    package=$(grep -F " $file " "$archive/share/doc/sorvane/bundled/README.md" | awk '{ print $2 }')
    expect "an origin of $file" [ -n "$package" ]
    expect "the licence of $package" [ -s "$archive/share/doc/sorvane/bundled/$package.txt" ]
done < <(cd "$archive" && find lib plugins -type f)

echo "installed from the archive it stands by itself too"
"$archive/install-user" >/dev/null
expect "installed from the archive" cmp -s "$archive/sorvane" "$program/sorvane"
for file in modules/sorvane-charts.so lib/libQt6Charts.so.6; do
    expect "$file in the archive and the copy" cmp -s "$archive/$file" "$program/$file"
done
start "$program" "$program/sorvane"
expect "its own Qt" grep -qxF "$program/lib/libQt6Widgets.so.6" <<<"$mapped"

echo "the package has Debian's form"
cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work/dist" >/dev/null
package=$work/dist/sorvane_$version-1_amd64.deb
expect "a package" [ -s "$package" ]
dpkg-deb -x "$package" "$work/deb"
ln -s /usr/share/common-licenses "$work/deb/usr/share/common-licenses"
check_icons "$work/deb/usr/share/icons/hicolor"
check_documents "$work/deb/usr/share/doc/sorvane"
expect "a manual page" man -l "$work/deb/usr/share/man/man6/sorvane.6.gz" >/dev/null
expect "the command" [ -x "$work/deb/usr/bin/sorvane" ]
expect "its dependencies" grep -q 'libqt6widgets6 .*libsqlite3-0 ' <<<"$(dpkg-deb -f "$package" Depends)"
packaged=$work/deb/usr/lib/sorvane
mkdir "$work/bin"
for command in sorvane sorvane-records; do
    sed "s#=/usr/lib#=$work/deb/usr/lib#" "$work/deb/usr/bin/$command" >"$work/bin/$command"
    chmod +x "$work/bin/$command"
done

echo "the package takes the place of a copy from the archive and of what that told the desktop"
records=$(sha256sum <"$program/data/sorvane.mdb")
start "$program" "$work/bin/sorvane"
expect "the packaged program" cmp -s "$packaged/sorvane" "$program/sorvane"
for part in lib plugins qt.conf; do expect "no bundled $part" [ ! -e "$program/$part" ]; done
expect "no entry that hides the package's" [ ! -e "$entry" ]
expect "no command that hides the package's" [ ! -L "$HOME/.local/bin/sorvane" ]
expect "records kept" [ "$(sha256sum <"$program/data/sorvane.mdb")" = "$records" ]
check_documents "$program/share/doc/sorvane"

echo "a current copy is started as it is, an older one is upgraded first"
before=$(stat -c %i "$program/sorvane")
start "$program" "$work/bin/sorvane"
expect "the copy is untouched" [ "$(stat -c %i "$program/sorvane")" = "$before" ]
cp -p "$packaged/install-user" "$work/install-user"
printf '#!/bin/sh\nexit 1\n' >"$packaged/install-user"  # which isn't asked
touch -r "$work/install-user" "$packaged/install-user"
start "$program" "$work/bin/sorvane"
cp -p "$work/install-user" "$packaged/install-user"
touch "$program/sorvane"
start "$program" "$work/bin/sorvane"
expect "the copy is untouched, which is of another time alone" [ "$(stat -c %i "$program/sorvane")" = "$before" ]
touch -r "$packaged/sorvane" "$program/sorvane"
echo older >>"$program/sorvane"
start "$program" "$work/bin/sorvane"
expect "upgraded" cmp -s "$packaged/sorvane" "$program/sorvane"
expect "its charts too" cmp -s "$packaged/modules/sorvane-charts.so" "$program/modules/sorvane-charts.so"
expect "records kept" [ "$(sha256sum <"$program/data/sorvane.mdb")" = "$records" ]

echo "another player has records of their own"
first=$program
export HOME=$work/another
start "$HOME/.local/opt/sorvane" "$work/bin/sorvane"
expect "the second player's records" [ -s "$HOME/.local/opt/sorvane/data/sorvane.mdb" ]
"$work/bin/sorvane-records" check >/dev/null || fail "the second player's sorvane-records"
expect "the first one's as they were" [ "$(sha256sum <"$first/data/sorvane.mdb")" = "$records" ]
