#!/bin/bash
# board_check as a user has it: what it prints, and what it ends with. Usage: board_check.sh
# BOARD_CHECK BOARD DIRECTORY
set -u
board_check=$1
board=$2
directory=$3
mkdir -p "$directory"
cd "$directory" || exit 1
failed=0

# expect CODE OUTPUT ERROR WORD...: what it ends with, and a pattern for each of what it prints
expect() {
    local code=$1 output=$2 error=$3
    shift 3
    "$board_check" "$@" >stdout 2>stderr
    local status=$?
    if [ "$status" != "$code" ]; then
        echo "FAILED: board_check $*: exit code $status instead of $code"
        failed=1
    fi
    local stream wanted
    for stream in stdout stderr; do
        [ $stream = stdout ] && wanted=$output || wanted=$error
        # shellcheck disable=SC2254
        case $(cat $stream) in
            $wanted) ;;
            *)
                echo "FAILED: board_check $*: $stream has: $(cat $stream)"
                failed=1
                ;;
        esac
    done
}

printf '{"name": "small"}' >small.json
printf '{"properties": {"a": {"type": "i32"}}}' >one.json
printf '{"commands": {"CMD_A": {}, "CMD_B": {}}}' >two.json
printf '{"commands": {"CMD_A": {}}}' >three.json

expect 0 'usage: board_check *' '' --help
expect 0 'usage: board_check *' '' -h
expect 2 '' 'usage: board_check *' --nothing
expect 2 '' 'usage: board_check *' a.json b.json c.json
expect 0 "$board: * properties, * commands" ''
expect 0 "$board: * properties, * commands" '' "$board"
expect 0 'small.json: 0 properties, 0 commands' '' small.json
expect 1 '' $'one.json:1: the board has no name\none.json:1: property \'a\' has no initial\n2 problems' one.json
expect 1 '' $'three.json:1: unknown command \'CMD_A\'\n1 problem' small.json three.json
expect 1 '' $'*CMD_A*\n*CMD_B*\n2 problems' small.json two.json

exit $failed
