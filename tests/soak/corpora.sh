#!/usr/bin/env bash
# corpora.sh REPLAY: the XML files that Debian's sources of other parsers carry for their own tests, given to every
# reader, every query and the checker. They are fetched into a folder that goes away.
set -euo pipefail
replay=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# Sources have lists of their own here, so that the system's stay as they are. They come from where its packages do.
mkdir -p lists/partial parts
for list in /etc/apt/sources.list.d/*.sources; do
    [[ ! -e $list ]] || sed 's/^Types:.*/Types: deb-src/' "$list" >"parts/$(basename "$list")"
done
sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >sources.list 2>/dev/null || true
options=(-o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts="$work/parts" -o Dir::State::Lists="$work/lists" -o APT::Sandbox::User=root)
apt-get "${options[@]}" update >/dev/null
apt-get "${options[@]}" source --download-only libxml2 expat >/dev/null
for archive in *.orig.tar.*; do
    case $archive in *.asc) ;; *) tar xf "$archive" ;; esac
done

mkdir inputs
count=0
while IFS= read -r file; do
    count=$((count + 1))
    for kind in feature slot silk screen layer card connector resolution menu fnbutton keycheck lockarea settings usersettings; do
        { echo $kind && cat "$file"; } >"inputs/$count-$kind"
    done
done < <(find . -path ./inputs -prune -o -type f \( -name '*.xml' -o -name '*.ent' -o -name '*.dtd' -o -name '*.xhtml' \) -size -1025k -print)
echo "$count files, each as every kind of file"
status=0
timeout 3600 "$replay" inputs 2>last || status=$?
((status == 0)) || { tail -n 3 last && echo "status $status" && exit 1; }
