#!/usr/bin/env bash
# What the compiler can't see of the house plan: only the reading layer touches the DOM, components never include one
# another, and the public headers know nothing of the library.
cd "$(dirname "$0")/../framework/src/libs/lcdmainconfigimpl" || exit 1
bad=0
complain() {
    if [[ -n "$2" ]]; then
        printf '%s\n%s\n' "$1" "$2"
        bad=1
    fi
}

complain "DOM look-ups outside reading/:" \
    "$(grep -nE '\b(attribute|attributeNode|firstChildElement|nextSiblingElement|elementsByTagName)\(' ./*.cpp ./*.h settings/* 2>/dev/null)"

components='deviceconfig|subcardconfig|connectorconfig|menuconfig|fnbuttonconfig|keycheckconfig|lockareaconfig|lcdconfig|lcdlanguageconfig'
for file in *.cpp *.h; do
    own=${file%%[._]*}
    [[ $file == kpmcomp.cpp || ! $own =~ ^($components)$ ]] && continue
    complain "$file includes another component:" \
        "$(grep -nE "#include \"($components)(_[a-z]+)?\.h\"" "$file" | grep -vE "\"$own(_[a-z]+)?\.h\"")"
done

complain "Public headers that reach into the library:" \
    "$(grep -rnE '#include "(reading|settings|framework)' ../../../../include)"
exit $bad
