#!/usr/bin/env bash
# fields.sh: writes the tables beside it of what the docstrings of the public headers say.
# fields.sh --compare: tells whether the tables are current; ends with 77 where doxygen or python3 is missing.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for program in doxygen python3; do
    if [[ ${1:-} == --compare ]] && ! command -v "$program" >/dev/null; then exit 77; fi
done

cd "$here/../../.."
{
    cat docs/Doxyfile
    printf '%s\n' "OUTPUT_DIRECTORY=$work" GENERATE_HTML=NO USE_MDFILE_AS_MAINPAGE= INPUT=include WARNINGS=NO
} | doxygen -
mkdir "$work/made"
python3 "$here/fields.py" "$work/xml" "$work/made"
for table in "$work"/made/*; do
    case ${1:-} in
    --compare) diff -u "$here/${table##*/}" "$table" || { echo "run ./dev reference"; exit 1; } ;;
    *) cp "$table" "$here" ;;
    esac
done
