#!/usr/bin/env bash
# Writes lcdcheck.1 anew from lcdcheck.1.in and what the program says of itself: refresh.sh LCDCHECK
# With a second word, "--check", only tells whether that changes anything.
set -euo pipefail
lcdcheck=$1
here=$(dirname "$0")

findings() {
    "$lcdcheck" --list | sed -E 's/^ *([^ ]+) +([^ ]+) +(.*)$/.It Sy \1 Pq \2\n\3./; s/\\/\\e/g'
}
formats() {
    echo '.Bl -tag -width sarif -compact'
    "$lcdcheck" --help | sed -nE '/^Formats:/,/^$/ s/^  ([^ ]+) +(.*)$/.It Cm \1\n\2./p'
    echo '.El'
}
kinds() {
    "$lcdcheck" --help | sed -nE 's/^Kinds of files: (.*)\.$/\1/p' | tr -d ',' | tr ' ' '\n' |
        sed -E 's/.*/.Cm & ,/; $ s/ ,/ ./'
}

page() {
    local line
    while IFS= read -r line; do
        case $line in
        @FINDINGS@) findings ;;
        @FORMATS@) formats ;;
        @KINDS@) kinds ;;
        *) printf '%s\n' "$line" ;;
        esac
    done <"$here/lcdcheck.1.in"
}

if [[ ${2:-} == --check ]]; then
    diff "$here/lcdcheck.1" <(page)
else
    page >"$here/lcdcheck.1.new"
    mv "$here/lcdcheck.1.new" "$here/lcdcheck.1"
fi
