# Completion of korvet-batch for bash. The program itself is asked for its options, categories and papers.

_korvet_batch_values() {  # PROGRAM OPTION: the values of an option, line by line; fails where they are file names
    local line
    case $2 in
    --new) "$1" --list 2>/dev/null | sed -n 's/^\([^ ].*[^ ]\)  *[Ff]rm.*/\1/p' ;;
    --paper) "$1" --new x --pdf x --paper '?' 2>&1 | sed -n 's/.*it takes //p' | sed 's/, /\n/g' ;;
    --set | --dimension | --size | --sheets) ;;
    *)
        line=$("$1" --help 2>/dev/null | grep -E -- "^  (-.,)?$2 ") || return
        case $line in
        *\{*\}*) line=${line#*\{}; printf '%s\n' "${line%%\}*}" | sed 's/,/\n/g' ;;
        *" INT:"* | *" INT "*) ;;
        *) return 1 ;;
        esac
        ;;
    esac
}

_korvet_batch() {
    local program=${COMP_WORDS[0]} word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} values
    local IFS=$'\n'
    COMPREPLY=()
    word=${word#[\"\']}
    word=${word//\\/}
    if [[ $before == --* ]] && "$program" --help 2>/dev/null | grep -qE -- "^  (-.,)?$before (TEXT|INT)"; then
        compopt -o filenames 2>/dev/null  # for names with blanks
        if values=$(_korvet_batch_values "$program" "$before"); then
            COMPREPLY=($(compgen -W "${values//\'/\\\'}" -- "$word"))
        else
            COMPREPLY=($(compgen -f -- "$word"))
        fi
    elif [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "$("$program" --help 2>/dev/null |
            sed -n 's/^  \(-.,\)\{0,1\}\(--[a-z-]*\).*/\2/p')" -- "$word"))
    else
        compopt -o filenames 2>/dev/null
        COMPREPLY=($(compgen -f -X '!*.[Kk][Vv][Tt]' -- "$word") $(compgen -d -- "$word"))
    fi
} && complete -F _korvet_batch korvet-batch
