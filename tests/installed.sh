#!/usr/bin/env bash
# An installed tree, moved to another place, is all that a panel application needs: installed.sh BUILD SOURCE
set -euo pipefail
build=$1 source=$2
work=$build/tests/installed
rm -rf "$work"
cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"

expect() { # TEXT COMMAND...
    "${@:2}" >"$work/out" 2>&1 || { cat "$work/out"; exit 1; }
    grep -qF -- "$1" "$work/out" || { echo "no '$1' from ${*:2}"; cat "$work/out"; exit 1; }
}

cmake -S "$source/examples/panel" -B "$work/panel" -G Ninja -DCMAKE_PREFIX_PATH="$work/moved" >/dev/null
cmake --build "$work/panel" >/dev/null
expect "1920 x 1080" "$work/panel/panel" "$source/examples/halcyon" 201 1
expect "No problems" "$work/moved/bin/lcdhost" load "$source/examples/halcyon"
export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$work/moved" -name lcdmainconfig.pc)")
expect "-lkpmhost" pkg-config --libs lcdmainconfig
test -f "$(pkg-config --variable=plugin lcdmainconfig)"

# Within another project: its targets and the plug-in, without tests or programs. Configured alone, since building would
# compile the library once more.
mkdir "$work/whole"
cat >"$work/whole/CMakeLists.txt" <<EOF
cmake_minimum_required(VERSION 3.25)
project(whole LANGUAGES CXX)
add_subdirectory($source lcdmainconfig)
add_subdirectory($source/examples/panel panel)
EOF
cmake -S "$work/whole" -B "$work/whole/build" -G Ninja >/dev/null
ninja -C "$work/whole/build" -t targets all >"$work/targets"
grep -q '/panel: ' "$work/targets"
if grep -qE '(lcdhost|lcdcheck|test_[a-z]+):' "$work/targets"; then
    echo "programs or tests within another project"
    exit 1
fi
