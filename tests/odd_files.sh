#!/usr/bin/env bash
# odd_files.sh LCDHOST LCDCHECK [KILOBYTES]: what is no file, in the place of every file that is read. Both programs end
# in time, within so much address space, and name it as a problem.
# odd_files.sh --many LCDHOST LCDCHECK: 100,000 entries in each folder of a catalogue; tells how long each takes.
set -euo pipefail
many=
[[ $1 == --many ]] && many=1 && shift
host=$1 check=$2 limit=${3:-unlimited}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root
"$check" --new root "$root" >"$work/out"

places="devices/device/feature.xml devices/device/slot.xml subcards/inputs/1.xml connectors/1.xml
    connectors/resolutionratio.xml menu/menuconfig.xml fnbutton/fnkeyboardconfig.xml keycheck/keyboardchecklist.xml
    lockarea/lockareaconfig.xml settings/lcdsetting.ini"

# make ODDITY PATH
make() {
    case $1 in
    pipe) mkfifo "$2" ;;
    socket) python3 -c 'import os, socket, sys; os.chdir(sys.argv[1]); socket.socket(socket.AF_UNIX).bind(sys.argv[2])' "${2%/*}" "${2##*/}" ;;
    device) ln -s /dev/zero "$2" ;;
    folder) mkdir "$2" ;;
    loop) ln -s "$2" "$2" ;;
    vanished) ln -s "$2.gone" "$2" ;;
    huge) truncate -s 1G "$2" ;;
    esac
}

# names PLACE ODDITY COMMAND...: the command fails in time and names the place, or its folder.
names() {
    local status=0
    (ulimit -v "$limit" && exec timeout 60 "${@:3}") >"$work/out" 2>&1 || status=$?
    if ((status != 1)) || ! grep -qE "$(basename "${1%.*}")|$root/${1%/*}\$" "$work/out"; then
        echo "${*:3} with a $2 as $1: status $status" && cat "$work/out" && exit 1
    fi
}

if [[ $many ]]; then
    for folder in devices/device subcards/inputs connectors keycheck; do
        for i in $(seq 100000); do echo "$i.xml"; done | (cd "$root/$folder" && xargs touch)
        for command in "$host load" "$check --format gcc"; do
            begin=$(date +%s%N) status=0
            # shellcheck disable=SC2086
            timeout 600 $command "$root" >"$work/out" 2>&1 || status=$?
            echo "100,000 entries in $folder: ${command##*/}, status $status, $((($(date +%s%N) - begin) / 1000000)) ms"
            ((status < 2))
        done
        find "$root/$folder" -empty -name '*.xml' -delete
    done
    exit 0
fi

for place in $places; do
    mv "$root/$place" "$work/kept"
    for oddity in pipe socket device folder loop vanished huge; do
        make $oddity "$root/$place"
        names "$place" $oddity "$host" load "$root"
        names "$place" $oddity "$check" "$root"
        rm -rf "${root:?}/$place"
    done
    mv "$work/kept" "$root/$place"
done
