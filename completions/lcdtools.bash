# Completion of lcdhost and lcdcheck for bash.
_lcdtools_words() { mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur"); }

_lcdhost() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    case $prev in
    --language) _lcdtools_words "en zh_CN" ;;
    --plugin) mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
    --card | --position | --interface | --device) ;;
    *)
        if [[ $cur == -* ]]; then
            _lcdtools_words "--plugin --language --json --device --svg --card --position --interface --user-settings --help
                --version"
        elif ((COMP_CWORD == 1)); then
            _lcdtools_words "load cards resolutions screens menu settings"
        else
            mapfile -t COMPREPLY < <(compgen -d -- "$cur")
        fi
        ;;
    esac
}

_lcdcheck() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} program=${COMP_WORDS[0]} given=
    case $prev in
    --explain) _lcdtools_words "$("$program" --list 2>/dev/null | awk '{print $1}')" ;;
    --only | --ignore)
        [[ $cur == *,* ]] && given=${cur%,*},
        _lcdtools_words "$("$program" --list 2>/dev/null | awk -v given="$given" '{print given $1}')"
        ;;
    --format) _lcdtools_words "text gcc json sarif github markdown html xml" ;;
    --fail-on) _lcdtools_words "error warning note never" ;;
    --language) _lcdtools_words "en zh_CN" ;;
    --kind | --reference | --schema | --new)
        _lcdtools_words "$("$program" --help 2>/dev/null | sed -n 's/^Kinds of files: \(.*\)\.$/\1/p' | tr -d ,)"
        ;;
    *)
        if [[ $cur == -* ]]; then
            _lcdtools_words "--format --only --ignore --fail-on --html --kind --language --watch --explain --list
                --reference --schema --new --at --effective --diff --help --version"
        else
            mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        fi
        ;;
    esac
}

complete -o filenames -F _lcdhost lcdhost
complete -o filenames -F _lcdcheck lcdcheck
