# Usage: bash candidates.bash SCRIPT WORD...: what bash offers for the last word.
. /usr/share/bash-completion/bash_completion
. "$1"
COMP_WORDS=("${@:2}")
COMP_CWORD=$(($# - 2))
COMP_LINE="${COMP_WORDS[*]}"
COMP_POINT=${#COMP_LINE}
_zel 2>/dev/null # compopt tells that no key was pressed
[ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}"
