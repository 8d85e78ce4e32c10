#!/usr/bin/env bash
# Plays the guided tour and holds what it leaves against what the documents show: tour_test.sh TOUR SOURCE_FOLDER
set -euo pipefail

tour=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

echo "the tour comes to its end without anything unexpected"
"$tour" --out "$work/out" || fail "something unexpected came up"
pictures=("$work"/out/[0-9][0-9]-*.png)
((${#pictures[@]} > 30)) || fail "only ${#pictures[@]} pictures"

echo "so it does with large letters in high contrast, and dark on a screen of twice the scale"
"$tour" --out "$work/large" --points 20 --contrast >/dev/null || fail "large letters"
"$tour" --out "$work/doubled" --scale 200 --dark >/dev/null || fail "a scale of 200"
for other in large doubled; do
    made=("$work/$other"/[0-9][0-9]-*.png)
    ((${#made[@]} == ${#pictures[@]})) || fail "${#made[@]} pictures in $other"
done

echo "its records lie in a folder of their own"
[[ -s $work/out/evening/data/sorvane.mdb ]] || fail "no records"

echo "it prints quick picks, a report and a form"
for page in "quick-picks:Ticket #8 - " "number-frequency:Number Frequency Report" "request:Name of Lottery: "; do
    pdftotext -layout "$work"/out/[0-9][0-9]-"${page%%:*}".pdf - | grep -F "${page#*:}" >/dev/null || fail "${page%%:*}.pdf"
done

echo "every picture that a document shows is there, and the tour makes it"
shown=$(cd "$source" && grep -oh 'pictures/[^)" ]*' README.md docs/*.md | sed 's#.*/##' | sort -u)
[[ -n $shown ]] || fail "no document shows a picture"
for picture in $shown; do
    [[ -s $source/docs/pictures/$picture ]] || fail "docs/pictures/$picture is missing"
    compgen -G "$work/out/[0-9][0-9]-$picture" >/dev/null || fail "the tour makes no $picture"
done

echo "every picture there is shown by a document"
for picture in "$source"/docs/pictures/*; do
    grep -qxF "$(basename "$picture")" <<<"$shown" || fail "nobody shows $picture"
done

echo "what it doesn't know it refuses"
for wrong in "--points 40" "--points x" "--scale 10"; do
    # shellcheck disable=SC2086  # two words
    if "$tour" $wrong 2>/dev/null; then fail "it took $wrong"; fi
done
if "$tour" --bright "$work/other" 2>/dev/null || [[ -e $work/other ]]; then fail "it played"; fi
