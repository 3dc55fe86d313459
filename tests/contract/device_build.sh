#!/bin/sh
# What the device's build relies on: the library compiles without exceptions and run-time type
# information, and Android.bp names files that exist and every test of one process.
# Usage: device_build.sh SOURCES CXX [flag...]
set -eu
cd "$1"
shift
failed=0

# A folder at a time, as one file each.
for folder in core log modules service; do
    printf '#undef TARN_LOG_TAG\n#include "%s"\n' "$folder"/*.cpp |
        "$@" -x c++ -std=c++17 -fsyntax-only -fno-exceptions -fno-rtti -I. -Iinclude \
            -Ihost/binder/include -Ihost/hidl/include -Ihost/properties/include - || {
        echo "$folder does not compile as one file without exceptions and run-time type information"
        failed=1
    }
done

named=$(sed -n 's/^ *\(srcs: \[\)\{0,1\}"\([^" ]*\.\(cpp\|wire\)\)".*/\2/p' Android.bp)
for pattern in $named; do
    for file in $pattern; do
        [ -f "$file" ] || { echo "Android.bp names $pattern, which is not there"; failed=1; }
    done
done

# Those that the device can't run, for the reasons that stand in Android.bp.
elsewhere='tests/unit/service/TarnClientTest.cpp
tests/unit/tarnctl/TarnctlArgumentsTest.cpp
tests/unit/tarnctl/TarnctlCommandsTest.cpp
tests/unit/tarnctl/TarnctlValuesTest.cpp'
for test in tests/contract/*Test.cpp tests/wire/*Test.cpp tests/unit/*/*Test.cpp; do
    case $test in tests/unit/host/* | tests/unit/simulator/*) continue ;; esac
    echo $named $elsewhere | tr ' ' '\n' | grep -qxF "$test" ||
        { echo "Android.bp lacks $test"; failed=1; }
done
exit $failed
