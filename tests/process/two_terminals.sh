#!/bin/bash
# The session of docs/two-terminals.md goes as printed. Usage: two_terminals.sh PROGRAMS DOCUMENT
set -u
document=$(readlink -f "$2")
PATH=$1:$PATH
directory=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$directory"' EXIT
cd "$directory" || exit 1

# What it starts ends with it, also when it is killed.
bound() { exec setpriv --pdeathsig KILL "$@"; }
mkfifo address
bound dbus-daemon --session --nofork --nopidfile --print-address >address &
read -r DBUS_SESSION_BUS_ADDRESS <address || { echo 'FAILED: no bus'; exit 1; }
export DBUS_SESSION_BUS_ADDRESS

# block HEADING: the first transcript under it
block() { sed -n "/^## $1/,/^## /p" "$document" | sed -n '/^```$/,/^```$/p' | sed '/^```$/d'; }

# waitfor LINE FILE
waitfor() {
    for _ in $(seq 1000); do
        grep -qxF -- "$1" "$2" && return
        sleep 0.02
    done
    echo "FAILED: no line '$1' in:"
    cat "$2"
    exit 1
}

block 'The first terminal' >first
block 'The second terminal' >second
[ "$(grep -c '^\$ ' second)" -gt 10 ] || { echo 'FAILED: hardly a command found'; exit 1; }

bound tarn-board 2>board.log &
board=$!
waitfor "$(sed -n "2s/4711/$board/p" first)" board.log
bound tarnctl monitor >monitor.log 2>&1 &
monitor=$!
waitfor 'tarnctl: waiting for events' monitor.log

# What the second terminal shows, its commands as they stand there.
sed -n 's/^\$ //p' second | sed "s/4711/$board/" | while IFS= read -r command; do
    printf '$ %s\n' "$command"
    bash -c "$command" 2>&1
    case $command in kill*) tail --pid="$board" -f /dev/null ;; esac
done | sed "s/\<$board\>/4711/" >printed
wait "$monitor"
echo "monitor ended with $?" >>monitor.log

diff second printed && { sed 1,3d first; echo 'monitor ended with 4'; } | diff - monitor.log
