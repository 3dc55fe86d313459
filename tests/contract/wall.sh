#!/bin/sh
# The wall between what ships and what only a Linux host has: no shipped file includes anything of
# the host's folders or libraries, asks where it runs, or uses what Android 13's libutils lacks.
set -eu
cd "$1"
failed=0

refuse() {  # refuse PATTERN WHAT FOLDER...
    pattern=$1 what=$2
    shift 2
    found=0
    grep -rnE --include='*.h' --include='*.cpp' --include='*.def' "$pattern" "$@" || found=$?
    case $found in
        0) echo "the lines above $what" ;;
        1) return ;;
        *) echo "grep failed: nothing is known of what $what" ;;
    esac
    failed=1
}

shipped='include log core service protocol modules'
refuse '#include.*(host/|simulator/|tests/|sdbus-c\+\+|json/)' 'reach over the wall' $shipped
# The one source of the command line that a host alone has is HostBoard.cpp.
refuse '#include.*(simulator/|host/|tests/|sdbus-c\+\+)' 'reach over the wall' \
       --exclude=HostBoard.cpp tools/tarnctl registry values
refuse '__ANDROID__' 'ask where they run' $shipped
refuse '\.string\(\)|sp<[^>]*>::make' 'use what not every Android release has' $shipped
refuse '#include "(log|core|service|protocol|modules)/' 'show a private header' include
refuse 'CMD_[A-Z]' 'name a command code' include

exit $failed
