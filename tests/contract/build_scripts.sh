#!/bin/bash
# What `make` calls finds its way after interruptions and changes, with a cmake, a ninja and a
# dpkg-query that only play their part. Usage: build_scripts.sh SCRIPTS FOLDER
set -u
scripts=$1 folder=$2
rm -rf "$folder"
mkdir -p "$folder/bin"
cd "$folder" || exit 1
export FOLDER=$folder PATH=$folder/bin:$PATH
unset MAKEFLAGS MAKELEVEL CXX CXXFLAGS LDFLAGS CMAKE_BUILD_TYPE
build=$folder/build
failed=0

fail() {
    echo "FAILED: $1"
    failed=1
}

# The player of cmake writes down how it was called and whether it found a cache.
cat >bin/cmake <<'END'
#!/bin/sh
build=$FOLDER/build
case $* in *-DTARN_BUILD_TESTS=ON*) tests=tests ;; *) tests=none ;; esac
[ -f "$build/CMakeCache.txt" ] && cache=cache || cache=fresh
[ -d "$build/CMakeFiles/3.22.1" ] && cache=$cache,compiler
echo "$tests $cache" >>"$FOLDER/calls"
mkdir -p "$build/CMakeFiles/3.22.1"
touch "$build/CMakeCache.txt"
[ ! -f "$FOLDER/cmake-fails" ] || { echo 'no such package'; exit 1; }
[ ! -f "$FOLDER/cmake-is-killed" ] || kill -9 $PPID $$
echo 'default all' >"$build/build.ninja"
END
cat >bin/dpkg-query <<'END'
#!/bin/sh
cat "$FOLDER/packages"
END
cat >bin/ninja <<'END'
#!/bin/sh
cat "$FOLDER/ninja-says"
exit 3
END
chmod +x bin/*
all_packages() { sed -n 's/^[^#]/installed &/p' "$scripts"/packages*.txt >packages; }
all_packages

# expect WHAT CALL [FLAG...]: configuring calls cmake like this, or not at all
expect() {
    local what=$1 call=$2
    shift 2
    : >calls
    { "$scripts/configure" "$build" "$@" >output 2>&1; } 2>/dev/null
    [ "$(cat calls)" = "$call" ] || fail "$what: cmake was called '$(cat calls)', not '$call'"
}

expect 'the first time' 'tests fresh'
expect 'nothing changed' ''
[ -s output ] && fail "nothing changed: it said $(cat output)"
expect 'other flags' 'tests fresh' -DA=1
expect 'the same other flags' '' -DA=1
CXXFLAGS=-O3 expect 'other compiler flags' 'tests fresh' -DA=1
CXX=clang++ expect 'another compiler' 'tests fresh' -DA=1
expect 'as before' 'tests fresh'

rm "$build/build.ninja"
expect 'no build.ninja' 'tests fresh'
echo 'rule' >"$build/build.ninja"
expect 'half a build.ninja' 'tests fresh'

touch cmake-is-killed
expect 'killed' 'tests fresh' -DA=1
rm cmake-is-killed
expect 'as before it was killed' 'tests fresh'
touch cmake-is-killed
expect 'killed again' 'tests fresh' -DA=1
rm cmake-is-killed
expect 'after it was killed' 'tests fresh' -DA=1
expect 'the second time after it was killed' '' -DA=1

touch cmake-fails
expect 'failing' 'tests fresh'
grep -q 'no such package' output || fail 'cmake failed and its words were not shown'
"$scripts/configure" "$build" >output 2>&1 && fail 'cmake failed and configure did not'
rm cmake-fails
expect 'after it failed' 'tests fresh'

sed -i /gtest/d packages
expect 'without a package of the tests' 'none fresh'
expect 'still without it' ''
all_packages
expect 'with the packages again' 'tests fresh'

rm "$build"/configured-with
expect 'configured by hand' 'tests cache,compiler'

# While somebody holds the lock, both wait and say so.
cat >ninja-says <<'END'
ninja: Entering directory `build'
[0/1] Re-running CMake...
-- Configuring done
[1/20] Building one.o
[2/20] Building two.o
FAILED: two.o
c++ -c two.cpp
two.cpp:1: error: no
[3/20] Building three.o
ninja: build stopped: subcommand failed.
END
exec 8>"$build/lock"
flock 8
: >calls
"$scripts/configure" "$build" -DA=1 >output 2>&1 8>&- &
"$scripts/build" "$build" >output.build 2>&1 8>&- &
for ((i = 0; i < 400; i++)); do
    grep -q . output && grep -q . output.build && break
    sleep 0.05
done
grep -q "waiting for another make in $build" output || fail 'configure did not say that it waits'
grep -q "waiting for another make in $build" output.build || fail 'build did not say that it waits'
[ -s calls ] && fail 'cmake was called while another make went on'
exec 8>&-
wait $!
status=$?
[ $status = 3 ] || fail "ninja ended with 3 and build with $status"
wait
[ "$(cat calls)" = 'tests fresh' ] || fail "after the wait cmake was called '$(cat calls)'"

diff - <(grep -v waiting output.build) <<END || fail 'the above is what build printed wrongly'
$build: 2 of 20 steps
FAILED: two.o
two.cpp:1: error: no
ninja: build stopped: subcommand failed.
$build: these could not be made:
    two.o
END

# says COMPLAINT TARGET ARGUMENT...: they are refused with this line; without one they are accepted
says() {
    local complaint=$1
    shift
    if "$scripts/check-arguments" "$@" >output 2>&1; then
        [ -z "$complaint" ] || fail "check-arguments $* is accepted"
    fi
    [ "$(cat output)" = "$complaint" ] || fail "check-arguments $* says '$(cat output)'"
}
for minutes in 10 0.5 00.25 10000 1; do says '' soak "$minutes"; done
for minutes in abc 0 0.0 10000.1 -1 1e3 '' '1 2' .5 inf 99999 $'1\n2'; do
    says "make soak: MINUTES=$minutes can't be used; accepted: a number above 0, up to 10000, \
such as 10 or 0.5" soak "$minutes"
done
for seconds in 1 10 999999; do says '' fuzz "$seconds"; done
for seconds in abc 0 01 1.5 -1 '' 1000000 $'1\n2'; do
    says "make fuzz: SECONDS=$seconds can't be used; accepted: a whole number from 1 to 999999" \
        fuzz "$seconds"
done
fuzzers='board bus_values carrier_channel carrier_messages carrier_queue carrier_tables description layouts methods'
fuzzers+=' parcel properties stubs tarnctl'
says '' fuzz 10 parcel stubs
for fuzzer in parcels PARCEL par '.*' -v; do
    says "make fuzz: FUZZERS: there is no fuzzer $fuzzer; accepted: $fuzzers" fuzz 10 parcel "$fuzzer"
done

# runs_first COMMAND TARGET ARGUMENT...: what make runs first
runs_first() {
    local command=$1
    shift
    [ "$(make -n --no-print-directory -C "$scripts/.." "$@" 2>/dev/null | head -1)" = "$command" ] ||
        fail "make $* does not begin with $command"
}
runs_first "scripts/check-arguments soak '0'" soak MINUTES=0
runs_first "scripts/check-arguments fuzz 'abc' parcel stubs" fuzz SECONDS=abc FUZZERS='parcel stubs'
exit $failed
