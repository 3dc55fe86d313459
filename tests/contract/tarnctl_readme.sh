#!/bin/bash
# The README's transcripts are what tarnctl prints. Usage: tarnctl_readme.sh TARNCTL README DIRECTORY
set -u
PATH=$(dirname "$1"):$PATH
readme=$(readlink -f "$2")
mkdir -p "$3"
cd "$3" || exit 1
failed=0
checked=0
command=
expected=

check() {
    [ -z "$command" ] && return
    case $command in
        # What a transcript shows of a file is the file.
        cat\ *) printf '%s' "$expected" >"${command#cat }" ;;
    esac
    # The end of the output is kept as it is.
    local got
    got=$(bash -c "$command" 2>&1; echo .)
    if [ "${got%.}" != "$expected" ]; then
        printf 'FAILED: %s\nprinted:\n%sinstead of:\n%s' "$command" "${got%.}" "$expected"
        failed=1
    fi
    checked=$((checked + 1))
    command=
}

while IFS= read -r line; do
    case $line in
        '```'*) check ;;
        '$ '*)
            check
            command=${line#??}
            expected=
            ;;
        *) [ -n "$command" ] && expected+=$line$'\n' ;;
    esac
done <"$readme"

[ "$checked" -gt 10 ] || { echo "only $checked transcripts found"; exit 1; }
exit $failed
