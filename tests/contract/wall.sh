#!/bin/sh
# What shipped files must not do: ask where they run, or use what Android 13's libutils lacks. And
# what folders.sh can't tell, since it knows folders alone: which of the simulator's headers the
# command line and the tests may include.
set -eu
cd "$1"
failed=0

refuse() {  # refuse PATTERN WHAT FOLDER...
    pattern=$1 what=$2
    shift 2
    found=0
    grep -rnP --include='*.h' --include='*.cpp' --include='*.def' "$pattern" "$@" || found=$?
    case $found in
        0) echo "the lines above $what" ;;
        1) return ;;
        *) echo "grep failed: nothing is known of what $what" ;;
    esac
    failed=1
}

shipped='include log core service protocol modules recovery'
refuse '__ANDROID__' 'ask where they run' $shipped
refuse '\.string\(\)|sp<[^>]*>::make' 'use what not every Android release has' $shipped
refuse '#include "(log|core|service|protocol|modules|recovery)/' 'show a private header' include
refuse 'CMD_[A-Z]' 'name a command code' include

# The command line knows of the simulated board how it is steered, an interface that needs nothing
# of it; HostBoard.cpp alone knows where a board comes from.
refuse '#include "simulator/(?!BoardControl\.h)' 'need more of the board than its control' \
       --exclude=HostBoard.cpp tools/tarnctl
refuse '#include (?!<(json/value\.h|[a-z]+)>)' 'keep the interface from standing alone' \
       simulator/include/simulator/BoardControl.h
refuse '#include "simulator/[a-z]+/' 'see what the simulator does not publish' \
       tests/contract tests/process tests/support tests/unit/tarnctl

exit $failed
