#!/bin/sh
# What the device's build relies on: the library compiles without exceptions and run-time type
# information, and Android.bp names files that exist and every test of one process, lets the library
# export as little as here, and gives the tests of what it hides the static one.
# Usage: device_build.sh SOURCES CXX [flag...]
set -eu
cd "$1"
shift
failed=0

# A folder at a time, as one file each.
for folder in core log modules recovery service; do
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
elsewhere='tests/unit/recovery/BridgeRecoveryTest.cpp
tests/unit/service/TarnClientTest.cpp
tests/unit/tarnctl/TarnctlArgumentsTest.cpp
tests/unit/tarnctl/TarnctlCommandsTest.cpp
tests/unit/tarnctl/TarnctlValuesTest.cpp'
for test in tests/contract/*Test.cpp tests/wire/*Test.cpp tests/unit/*/*Test.cpp; do
    case $test in tests/unit/host/* | tests/unit/simulator/*) continue ;; esac
    echo $named $elsewhere | tr ' ' '\n' | grep -qxF "$test" ||
        { echo "Android.bp lacks $test"; failed=1; }
done

# module NAME: its lines in Android.bp
module() {
    awk -v name="    name: \"$1\"," '/ \{$/ && /^[a-z]/ {block = ""; found = 0}
        {block = block $0 "\n"} $0 == name {found = 1} /^}/ && found {printf "%s", block; found = 0}' Android.bp
}
# has MODULE TEXT...
has() {
    of=$1
    shift
    for text in "$@"; do
        module "$of" | grep -qF "$text" || { echo "Android.bp: $of lacks $text"; failed=1; }
    done
}
has tarn_library_defaults '"-fvisibility=hidden"' '"-fvisibility-inlines-hidden"'
has libtarn_vendor_api '"tarn_library_defaults"' 'version_script: "cmake/exports.map"'
has libtarn_vendor_api_static '"tarn_library_defaults"'
for hidden in core modules service; do
    has tarn_private_tests "\"tests/unit/$hidden/"
done
for tests in tarn_private_tests tarn_class_shape_test; do
    has $tests 'static_libs: ["libtarn_vendor_api_static"]'
    if module $tests | grep -qF '"libtarn_vendor_api"'; then
        echo "Android.bp: $tests has the library twice"
        failed=1
    fi
done
exit $failed
