#compdef zel
# Completion of zel for zsh. The table is made from the program's own help.

_zel_table() {
    cat <<'END'
@TABLE@
END
}

# The first column of a list that the program prints; looking makes no data file.
_zel_column() {
    local -a found
    [[ -e "$HOME/Library/Application Support/ZELMac/ZEL.xml" ]] || return 1
    found=(${(f)"$(_call_program zel-list ${(q)zel} $@ 2>/dev/null </dev/null | sed -n '2,$s/^\([^",]\{1,\}\),.*/\1/p')"})
    compadd -- $found
}

_zel_restore() { _zel_column backup list }
_zel_patients() { _zel_column patients }
_zel_settings() { compadd -S = -- ${=zel_choices[$1]} }
_zel_sections() { _sequence compadd - ${=zel_choices[$1]} }

# Leaves in reply how _arguments is to complete a value.
_zel_action() { # NAME VALUE CHOICES
    case "$1 $2" in
    *\ KEY=*) zel_choices[$1]=$3; reply="{_zel_settings $1}" ;;
    *\ KEY*,*) zel_choices[$1]=$3; reply="{_zel_sections $1}" ;;
    --patient\ *|--send-id\ *) reply=_zel_patients ;;
    "restore NAME") reply=_zel_restore ;;
    *\ FILE*|*=FILE*) reply=_files ;;
    *\ DIR) reply="_files -/" ;;
    *) reply=" "; [[ $3 == - ]] || reply="($3)" ;;
    esac
}

# One option as _arguments wants it; it is offered again after use only if it may be given several times.
_zel_option() { # NAME VALUE CHOICES DESCRIPTION
    local text="[${4//(#m)[][:\\]/\\$MATCH}]" reply several
    [[ $2 == KEY=* ]] && several='*'
    if [[ $2 == - ]]; then
        offers+="$1$text"
        return
    fi
    _zel_action "$1" "$2" "$3"
    case $2 in
    \[=*) offers+="$1=-$text::${2//[^A-Za-z]/}:$reply" ;;
    *) offers+="$several$1$text:${2//:/ }:$reply" ;;
    esac
}

_zel_word() { # OWNER
    local reply
    local -a first
    for row in ${(f)table}; do
        cells=("${(@ps:\t:)row}")
        [[ $cells[1] == word && $cells[2] == $1 ]] || continue
        _zel_action "$cells[3]" "$cells[4]" "$cells[5]"
        if [[ $cells[3] == - ]]; then
            offers+="*:${cells[4]//[^A-Za-z]/}:$reply"
        else
            first+=$cells[3]
            [[ $cells[3] == $words[2] && $cells[4] != - ]] && offers+="2:$cells[4]:$reply"
        fi
    done
    (( $#first )) && offers+="1:job:($first)"
}

_zel() {
    setopt localoptions extendedglob
    local curcontext=$curcontext state line zel=$words[1] table row
    local -a offers cells commands
    local -A zel_choices
    table=$(_zel_table)
    for row in ${(f)table}; do
        cells=("${(@ps:\t:)row}")
        case "$cells[1] $cells[2]" in
        'option -') _zel_option "${(@)cells[3,6]}" ;;
        command\ *) commands+="$cells[2]:$cells[6]" ;;
        esac
    done
    _arguments -C $offers '1:command:->command' '*::argument:->argument' && return
    case $state in
    command) _describe command commands ;;
    argument)
        offers=()
        for row in ${(f)table}; do
            cells=("${(@ps:\t:)row}")
            [[ "$cells[1] $cells[2]" == "option $words[1]" ]] && _zel_option "${(@)cells[3,6]}"
        done
        _zel_word $words[1]
        _arguments $offers
        ;;
    esac
}

_zel "$@"
