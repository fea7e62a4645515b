# Prints what bash offers at the end of the line "$2" with the completion in the folder "$1".
source "$1/mirrix-cli"
line=$2
[[ $line == *' ' ]] && line+="''"
eval "COMP_WORDS=(${line//=/ = })"
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_mirrix_cli 2> /dev/null # compopt complains outside a completion
if ((${#COMPREPLY[@]} == 0)) && [[ $(complete -p mirrix-cli) == *'-o default'* ]]; then
    COMPREPLY=($(compgen -f -- "${COMP_WORDS[COMP_CWORD]}"))
fi
printf '%s\n' "${COMPREPLY[@]}"
