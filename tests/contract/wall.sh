#!/bin/sh
# The wall between what ships and what only a Linux host has: no shipped file includes anything of
# the host's folders or libraries, asks where it runs, or uses what Android 13's libutils lacks. And
# the simulator's own: what it publishes is all that others see of it, and its rooms form no circle.
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

shipped='include log core service protocol modules'
refuse '#include.*(host/|simulator/|tests/|sdbus-c\+\+|json/)' 'reach over the wall' $shipped
# The one source of the command line that a host alone has is HostBoard.cpp. The others know of the
# simulated board how it is steered: an interface that needs nothing of it.
steering=simulator/include/simulator/BoardControl.h
refuse '#include.*(simulator/(?!BoardControl\.h)|host/|tests/|sdbus-c\+\+)' 'reach over the wall' \
       --exclude=HostBoard.cpp tools/tarnctl
refuse '#include.*(simulator/|host/|tests/|sdbus-c\+\+)' 'reach over the wall' registry values
refuse '#include (?!<(json/value\.h|[a-z]+)>)' 'keep the interface from standing alone' $steering
refuse '__ANDROID__' 'ask where they run' $shipped
refuse '\.string\(\)|sp<[^>]*>::make' 'use what not every Android release has' $shipped
refuse '#include "(log|core|service|protocol|modules)/' 'show a private header' include
refuse 'CMD_[A-Z]' 'name a command code' include

inside='#include "simulator/[a-z]+/'
refuse "$inside" "see what the simulator does not publish" \
       bench docs examples host tools tests/contract tests/process tests/support tests/unit/tarnctl
refuse '#include "(?!simulator/[A-Z]\w*\.h)' 'publish what is not published' simulator/include
refuse '#include "simulator/(description|board|control|daemon)/' 'include what stands above' simulator/faults
refuse '#include "simulator/(board|control|daemon)/' 'include what stands above' simulator/description
refuse '#include "simulator/(control|daemon)/' 'include what stands above' simulator/board
refuse '#include "simulator/daemon/' 'include what stands above' simulator/control

exit $failed
