#!/usr/bin/env bash
# fields.sh FILE: writes the table of the records' fields and their meanings, from the docstrings of the public headers.
# fields.sh --compare FILE: tells whether the file is current; ends with 77 where doxygen or python3 is missing.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for program in doxygen python3; do
    if [[ $1 == --compare ]] && ! command -v "$program" >/dev/null; then exit 77; fi
done

cd "$here/../../.."
{
    cat docs/Doxyfile
    printf '%s\n' "OUTPUT_DIRECTORY=$work" GENERATE_HTML=NO USE_MDFILE_AS_MAINPAGE= INPUT=include WARNINGS=NO
} | doxygen -
python3 "$here/fields.py" "$work/xml" >"$work/fields.inc"
case $1 in
--compare) diff -u "$2" "$work/fields.inc" || { echo "run ./dev reference"; exit 1; } ;;
*) cp "$work/fields.inc" "$1" ;;
esac
