# Usage: zsh -f candidates.zsh FOLDER LINE: what zsh offers at the end of the line, with the functions in the folder.
zmodload zsh/zpty
begin() {
    PS1= PS2=
    fpath=($1 $fpath)
    autoload -Uz compinit
    compinit -u -D
    bindkey '^I' complete-word
    zstyle ':completion:*' list-grouped false
    zstyle ':completion:*' insert-tab false
    compprefuncs=(told)
    comppostfuncs=(ended)
    told() { print -r -- BEGIN; compprefuncs=(told) }
    ended() { print -r -- END; exit }
    compadd() {
        if [[ ${@[1,(i)(-|--)]} == *-[OAD]\ * ]]; then builtin compadd "$@"; return; fi
        local -a hits before after
        local hit
        zparseopts -E -a ignored P:=before S:=after
        builtin compadd -A hits "$@"
        for hit in $hits; do print -r -- "> $IPREFIX$before[2]$hit$after[2]"; done
        builtin compadd "$@"
    }
}
zpty shell zsh -f -i
zpty -w shell "$(functions begin); begin ${(q)1}; print -r -- READY"
zpty -r shell text "*READY*READY*"
zpty -w -n shell "$2"$'\t'
zpty -r shell text "*END*"
print -r -- "$text" | tr -d '\r' | sed -n 's/^> //p'
