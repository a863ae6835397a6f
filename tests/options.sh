#!/usr/bin/env bash
# The manual pages and the completions tell of every option that the programs have, and of no other.
# usage: options.sh SOURCES LCDHOST LCDCHECK
set -euo pipefail
cd "$1"
bad=0

options() { grep -oE -- '--[a-z]+(-[a-z]+)*' | sort -u; }
# Of zsh's "'--json[write...]'" and "'(- *)'{-h,--help}'[show...]'".
described() { sed -nE "s/^ *[\"']?(\(- \*\)'\{-.,)?(--[a-z-]+).*/\2/p" "$1" | sort -u; }
for program in "$2" "$3"; do
    name=$(basename "$program")
    has=$("$program" --help | options)
    for place in "completions/lcdtools.bash" "completions/_$name" "completions/$name.fish" "docs/man/$name.1"; do
        case $place in
        *.bash) told=$(sed -n "/^_$name()/,/^}/p" "$place" | options) ;;
        *.fish) told=$(sed -nE 's/^complete .*-l ([a-z-]+).*/--\1/p' "$place" | sort -u) ;;
        *.1) told=$(grep -oE 'Fl (h , |v , )?-[a-z-]+' "$place" | sed -E 's/.* -/--/' | sort -u) ;;
        *) told=$(described "$place") ;;
        esac
        if [[ $told != "$has" ]]; then
            echo "$place and $name --help differ:"
            diff <(echo "$has") <(echo "$told") || true
            bad=1
        fi
    done
done
exit $bad
