# Completion of tarnctl's command line in bash: source this file, or install it as
# /usr/share/bash-completion/completions/tarnctl. The candidates come from tarnctl itself.

_tarnctl() {
    local words=("${COMP_WORDS[@]:1:COMP_CWORD}")
    local current=${words[-1]}
    if [ "$current" = = ]; then
        # bash takes "--json=" for two words; what is completed comes behind.
        words+=('')
    fi
    mapfile -t COMPREPLY < <("${COMP_WORDS[0]}" -- __complete "${words[@]}" 2>/dev/null)
    # Behind "audio." the name goes on.
    if [ "${#COMPREPLY[@]}" -eq 1 ] && [ "${COMPREPLY[0]%.}" != "${COMPREPLY[0]}" ]; then
        compopt -o nospace
    fi
}

complete -o default -F _tarnctl tarnctl
