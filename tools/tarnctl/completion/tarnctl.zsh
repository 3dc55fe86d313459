#compdef tarnctl
# Completion of tarnctl's command line in zsh, as _tarnctl in a folder of $fpath. The candidates come
# from tarnctl itself.

local -a given candidates unfinished
given=("${(@)words[2,CURRENT]}")
# The value of "--json=" is a word of its own to tarnctl.
if [[ ${given[-1]} == --*=* ]]; then
    local value=${given[-1]#*=}
    compset -P '*='
    given[-1]=("${given[-1]%%=*}" '=' "$value")
fi
candidates=("${(@f)$(${words[1]} -- __complete "${given[@]}" 2>/dev/null)}")
# Behind "audio." the name goes on.
unfinished=(${(M)candidates:#*.})
candidates=(${candidates:#*.})
(( $#unfinished )) && compadd -S '' -a unfinished
(( $#candidates )) && compadd -a candidates
(( $#unfinished + $#candidates )) || _files
