# Completion of zel for bash. The table is made from the program's own help.

_zel_table() {
    cat <<'END'
@TABLE@
END
}

# Offers those of the words that begin with what is typed. None is ever expanded: an ID may look like a command.
_zel_offer() {
    local word
    for word; do
        [[ $word == "$cur"* ]] || continue
        [[ $word == *[!A-Za-z0-9,._=-]* ]] && printf -v word %q "$word"
        COMPREPLY+=("$word")
    done
}

# The first column of a list that the program prints; looking makes no data file.
_zel_column() {
    local found=()
    [[ -e "$HOME/Library/Application Support/ZELMac/ZEL.xml" ]] || return
    mapfile -t found < <("${words[0]}" "$@" 2>/dev/null </dev/null | sed -n '2,$s/^\([^",]\{1,\}\),.*/\1/p')
    _zel_offer "${found[@]}"
}

_zel_choices() { # VALUE CHOICE...
    case $1 in
    KEY=*) # none is whole without its value
        compopt -o nospace
        _zel_offer "${@/%/=}"
        ;;
    KEY*,*) # several, with commas between them; those before the last comma stay
        local before=
        [[ $cur == *,* ]] && before=${cur%,*},
        _zel_offer "${@/#/"$before"}"
        ;;
    *) _zel_offer "${@:2}" ;;
    esac
}

_zel_value() { # NAME VALUE CHOICES: what may stand where an option or a word wants a value
    local choices
    if [[ $3 != - ]]; then
        read -ra choices <<<"$3"
        _zel_choices "$2" "${choices[@]}"
        return
    fi
    case "$1 $2" in
    --patient\ * | --send-id\ *) _zel_column patients ;;
    "restore NAME") _zel_column backup list ;;
    *\ FILE* | *=FILE*) _filedir ;;
    *\ DIR) _filedir -d ;;
    esac
}

# Finds the row of an option, or of a word, and leaves it in name, value and choices.
_zel_find() { # KIND NAME
    local row kind owner rest
    for row in "${rows[@]}"; do
        IFS=$'\t' read -r kind owner name value choices rest <<<"$row"
        [[ $kind == "$1" && $owner == "$command" && $name == "$2" ]] && return
    done
    return 1
}

# What has been typed before: the command, its last word, and the option that still wants a value.
_zel_look_back() {
    local i
    for ((i = 1; i < cword; i++)); do
        if [[ $option ]]; then
            option=
        elif [[ ${words[i]} == --* ]]; then
            _zel_find option "${words[i]}" && [[ $value != - && $value != "["* ]] && option=${words[i]}
        elif [[ $command == - ]]; then
            command=${words[i]}
        else
            last=${words[i]}
        fi
    done
}

_zel() {
    local cur prev words cword split=false rows row kind owner name value choices rest command=- last=- option=
    _init_completion -s || return
    mapfile -t rows < <(_zel_table)
    _zel_look_back
    [[ $split == true ]] && option=$prev
    if [[ $option ]]; then
        _zel_find option "$option" && _zel_value "$name" "$value" "$choices"
        return
    fi
    if [[ $cur != -* ]] && _zel_find word "$last"; then _zel_value "$last" "$value" "$choices"; fi
    for row in "${rows[@]}"; do
        IFS=$'\t' read -r kind owner name value choices rest <<<"$row"
        case "$kind $owner" in
        "option $command") [[ $cur == -* ]] && _zel_offer "$name" ;;
        "word $command") [[ $last == - && $name != - ]] && _zel_offer "$name" ;;
        command\ *) [[ $command == - ]] && _zel_offer "$owner" ;;
        esac
    done
}
complete -F _zel zel
