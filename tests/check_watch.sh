#!/usr/bin/env bash
# check_watch.sh LCDCHECK ROOT: `lcdcheck --watch` checks at once, again when a file changes, comes or goes, and ends when
# it is interrupted with the status of its last check.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$2" "$work/root"
menu=$work/root/menu/menuconfig.xml new=$work/root/devices/new/feature.xml

"$1" --watch --format gcc --only not-well-formed "$work/root" >"$work/out" 2>"$work/err" &
watcher=$!

# told COUNT PATTERN FILE: waits until so many lines have the pattern.
told() {
    for _ in $(seq 200); do
        (($(grep -c -- "$2" "$work/$3") >= $1)) && return
        sleep 0.05
    done
    echo "nothing like '$2' in time" && cat "$work/out" "$work/err" && kill "$watcher" && exit 1
}

# The watch has begun when it notices a file; touching one again and again would hide a change that is missed.
sleep 0.5
cp "$menu" "$work/menu" && echo "<LCD" >"$menu"
told 1 "menuconfig.xml:.*not-well-formed" out
mkdir -p "${new%/*}" && echo "<DCS" >"$new"
told 1 "new/feature.xml:.*not-well-formed" out
# As editors do: the file is replaced by another.
mv "$work/menu" "$menu"
told 1 "menuconfig.xml changed" err
rm -r "${new%/*}"
told 1 "new.* changed" err
changes=$(grep -c changed "$work/err")
sleep 1.3
(($(grep -c changed "$work/err") <= changes + 1)) || { echo "checks again without a change" && exit 1; }

kill -INT "$watcher"
status=0
wait "$watcher" || status=$?
((status == 0)) || { echo "status $status" && exit 1; }
