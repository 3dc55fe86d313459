#!/bin/bash
# tarnctl as a user has it: standard output carries data only, exit codes are honest, a batch works
# on one board, a signal ends the monitor. Usage: tarnctl_cli.sh TARNCTL COMPLETION DIRECTORY
set -u
tarnctl=$1
completion=$2
directory=$3
mkdir -p "$directory"
cd "$directory" || exit 1
failed=0
exec </dev/null

fail() {
    echo "FAILED: $1"
    failed=1
}

# expect CODE OUTPUT WORD...: what tarnctl ends with and prints on standard output
expect() {
    local code=$1 output=$2
    shift 2
    local got
    got=$("$tarnctl" "$@" 2>stderr)
    local status=$?
    [ "$status" = "$code" ] || fail "tarnctl $*: exit code $status instead of $code"
    [ "$got" = "$output" ] || fail "tarnctl $*: printed '$got' instead of '$output'"
    if grep -qv '^tarnctl: ' stderr; then fail "tarnctl $*: standard error has: $(cat stderr)"; fi
}

expect 0 30 call audio.getVolume
expect 0 0 call audio.setVolume 0x1e
grep -q 'embedded simulated board' stderr || fail 'nothing was said about the embedded board'
expect 0 0 -q call audio.setVolume 30
[ -s stderr ] && fail '-q let something through'
expect 0 0 call audio.setVolume 30 --trace
grep -q '^tarnctl: request 02140000 1e000000$' stderr || fail 'the trace lacks the request'
grep -q '^tarnctl: reply   00000000$' stderr || fail 'the trace lacks the reply'
expect 0 '"46.5"' -j call system.getCPUtemperature
expect 1 '' call audio.nothing
expect 1 '' call nobody.nothing
expect 1 '' describe CMD_NOTHING
expect 1 '' get audio.nothing
expect 2 '' call audio.setVolume
expect 2 '' call audio.setVolume 1 2
expect 2 '' call audio.setVolume loud
expect 2 '' call audio.setVolume 2147483648
expect 2 '' --nothing
expect 2 ''
expect 2 '' --board /no/such/file.json call audio.getVolume
expect 2 '' monitor --count abc
expect 2 '' monitor --count 99999999999
expect 2 '' --board '' status
expect 2 '' batch /tmp
grep -q "^tarnctl: can't read /tmp: Is a directory$" stderr || fail 'a directory as a batch'
# Not in a command substitution, whose pipe would take the closed one's place.
"$tarnctl" batch <&- >output 2>stderr
[ $? = 2 ] || fail 'a closed standard input did not end a batch with 2'
grep -q "^tarnctl: can't read -: " stderr || fail 'a closed standard input as a batch'
expect 2 '' call device.setNfcTagMsg $'\xff'
grep -q 'is not UTF-8$' stderr || fail 'a text that is not UTF-8'
expect 3 -1 call audio.setVolume 101
expect 3 "status: -1
reply: ffffffff" raw 0x7ffe
expect 4 '' --service call audio.getVolume

printf 'set audio.volume 41  # louder\nget audio.volume\nmonitor --count 1 --timeout 60 -j\n' >commands
expect 0 '0
41
{"data":"29000000","size":4,"type":5122}' batch commands
expect 3 -1 batch <<<'call audio.setVolume 101
call audio.getVolume'
expect 3 '-1
30' -k batch <<<'call audio.setVolume 101
call audio.getVolume'
expect 4 '' batch <<<"board fault '*' dead
call audio.getVolume"
expect 4 '' batch --timeout 1 <<<'board fault 0x1401 delay 30000
call audio.getVolume'

totals=$("$tarnctl" list | awk '$2 ~ /^[0-9]+$/ { controllers++; methods += $2 }
                               END { print controllers " controllers, " methods " methods" }')
[ "$("$tarnctl" list | tail -1)" = "$totals" ] || fail 'the totals of list'
"$tarnctl" list >/dev/full 2>stderr
[ $? = 5 ] || fail 'a full disk went unnoticed'
[ "$(cat stderr)" = "tarnctl: can't write the results: No space left on device" ] ||
    fail "a full disk is called $(cat stderr)"
"$tarnctl" -k batch >/dev/full 2>stderr <<<'board raise 1
board raise 2
monitor --timeout 60
call audio.nothing'
[ $? = 5 ] || fail 'a batch went on with its results lost'
grep -q ':3: .*No space left' stderr || fail 'the monitor went on with a full disk'

rm -f board
mkfifo board
expect 4 '' --timeout 0.5 --board board call audio.getVolume
rm board

# Verbose shows the library's log, and does not change the level for others.
"$tarnctl" -v call audio.postAudioEvent 7 0a 2>stderr >/dev/null
grep -q postAudioEvent stderr || fail '-v does not show the log'
expect 0 'service: ready
where: embedded
board: default
logLevel: WARN' status
# Not even for a moment, in which others would read it, or which it would not outlive.
rm -f level.lock
printf 'persist.vendor.tarn.loglevel=TARN_LOG_ERROR\n' >level
TARN_PROPERTIES_FILE=$PWD/level "$tarnctl" -v -q list >/dev/null 2>&1
[ "$(cat level)" = persist.vendor.tarn.loglevel=TARN_LOG_ERROR ] || fail "-v stored $(cat level)"
[ -e level.lock ] && fail '-v set a property'

for signal in INT TERM; do
    rm -f stderr
    # A shell starts what it puts into the background with SIGINT ignored; env mends that.
    env --default-signal=INT "$tarnctl" monitor >events 2>stderr &
    monitor=$!
    for _ in $(seq 600); do
        grep -qs 'waiting for events' stderr && break
        sleep 0.1
    done
    kill -s "$signal" "$monitor"
    wait "$monitor"
    status=$?
    [ "$status" = 0 ] || fail "monitor ended with $status on SIG$signal"
    [ -s events ] && fail "monitor printed $(cat events)"
done

# Interrupted before all events came, and within a batch, it is no success.
interrupted() {
    rm -f stderr
    env --default-signal=INT "$tarnctl" "$@" <commands >events 2>stderr &
    monitor=$!
    for _ in $(seq 600); do
        grep -qs 'waiting for events' stderr && break
        sleep 0.1
    done
    kill -s INT "$monitor"
    wait "$monitor"
    status=$?
    [ "$status" = 130 ] || fail "tarnctl $*, interrupted: exit code $status"
    [ -s events ] && fail "tarnctl $*, interrupted, printed $(cat events)"
}
printf 'monitor\nget audio.volume\n' >commands
interrupted monitor --count 3
interrupted -k batch

for help in '' $("$tarnctl" --help | sed -n '/^commands:/,/^$/s/^  \([a-z]*\) .*/\1/p'); do
    # Nothing stands for the help of all.
    "$tarnctl" ${help:+"$help"} --help | awk -v help="$help" 'length > 100 || /[ \t]$/ {
        print "FAILED: tarnctl " help " --help: " $0; wrong = 1 } END { exit wrong }' || failed=1
done

# Completion as bash would ask for it.
compopt() { options=$*; }
# shellcheck source=/dev/null
source "$completion"
complete_words() {
    COMP_WORDS=("$tarnctl" "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    options=
    _tarnctl
    echo "${COMPREPLY[*]}$options"
}
[ "$(complete_words call aud)" = 'audio.-o nospace' ] || fail 'completing a controller'
[ "$(complete_words call audio.setVol)" = audio.setVolume ] || fail 'completing a method'
[ "$(complete_words list --json =)" = 'short pretty' ] || fail 'completing a value'
[ "$(complete_words --json = pretty call aud)" = 'audio.-o nospace' ] || fail 'completing after a value'
[ "$(complete_words batch com)" = '' ] || fail 'completing a file'

exit $failed
