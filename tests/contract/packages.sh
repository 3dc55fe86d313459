#!/bin/bash
# Another project's programs are built against an installed tree, by cmake and by pkg-config, with
# and without a simulated board, with no flag of their own; the Debian package holds the same tree,
# which runs. Usage: packages.sh CMAKE BUILD SOURCE FOLDER COMPILER FLAGS
set -eu
export LC_ALL=C
cmake=$1 build=$2 source=$3 folder=$4 compiler=$5 flags=$6
outside=$source/tests/contract/outside
example=$source/examples/volume.cpp
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
"$cmake" --install "$build" --prefix "$folder/first" >/dev/null
mv first tree

expect() {  # expect WANTED PROGRAM...
    local wanted=$1 got
    shift
    # The board's event may come before or after the result.
    got=$("$@" 2>/dev/null | sort | tr '\n' ';')
    [ "$got" = "$wanted" ] || { echo "$*: expected '$wanted', got '$got'"; exit 1; }
    if ldd "$1" | grep -F -e "$build/lib/" -e 'not found'; then
        echo "$1 needs the libraries above"
        exit 1
    fi
}

plain='4 bytes;ready -1;volume -1;'
board='event 5122, 4 bytes;volume 30;'

"$cmake" -S "$outside" -B by-cmake -DCMAKE_PREFIX_PATH="$folder/tree" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_FLAGS="$flags" -DEXAMPLE="$example" >log 2>&1 &&
    "$cmake" --build by-cmake >>log 2>&1 || { cat log; exit 1; }
expect "$plain" by-cmake/plain
expect "$board" by-cmake/board

PKG_CONFIG_PATH=$(dirname "$(find "$folder/tree" -name tarn_vendor_api.pc)")
export PKG_CONFIG_PATH
# shellcheck disable=SC2046,SC2086
"$compiler" $flags "$outside/plain.cpp" -o plain $(pkg-config --cflags --libs tarn_vendor_api)
# shellcheck disable=SC2046,SC2086
"$compiler" $flags "$example" -o board $(pkg-config --cflags --libs tarn_simulator)
expect "$plain" ./plain
expect "$board" ./board

# What the pages say of the programs is what these say of themselves: each line in two columns.
for program in tarnctl tarn-board; do
    sed -E -e '/^\.(TP|SH|PP|TH|nf|fi)/d' -e 's/^\.[BI]R? //' -e 's/\\-/-/g' -e "s/\\\\\(aq/'/g" \
        "tree/share/man/man1/$program.1" | tr '\n' ' ' >page
    "tree/bin/$program" --help | sed -nE 's/^  ([^ ]+( [^ ]+)*)  +([^ ].*)$/\1 \3/p' >lines
    [ "$(wc -l <lines)" -gt 10 ] || { echo "$program --help lists too little"; exit 1; }
    while IFS= read -r line; do
        grep -qF -- "$line" page || { echo "$program.1 lacks: $line"; exit 1; }
    done <lines
done

(cd "$build" && cpack -G DEB -B "$folder/deb" >"$folder/log" 2>&1) || { cat log; exit 1; }
package=$(echo deb/*.deb)
dpkg-deb --info "$package" >info
grep -q 'Package: tarn-vendor-api' info || { cat info; exit 1; }
# It holds files alone, below /usr, and runs nothing when it comes and goes.
[ -z "$(dpkg-deb --ctrl-tarfile "$package" | tar t | grep -E 'inst$|rm$')" ] || { echo 'it has scripts'; exit 1; }
[ -z "$(dpkg-deb --fsys-tarfile "$package" | tar t | grep -Ev '^\./(usr/.*)?$')" ] || { echo 'it reaches out'; exit 1; }
dpkg -x "$package" root
mkdir -p system/var/lib/dpkg/info system/var/lib/dpkg/updates
: >system/var/lib/dpkg/status
manage() {  # manage ACTION...: as the package manager does, in a system of its own
    dpkg --root="$folder/system" --force-not-root,depends --log=/dev/null "$@" >log 2>&1 || { cat log; exit 1; }
}
manage -i "$package"
[ -x system/usr/bin/tarnctl ] || { echo 'the package installs nothing'; exit 1; }
manage -r tarn-vendor-api
[ ! -e system/usr ] || { find system/usr; echo 'the above stays behind'; exit 1; }
[ "$(root/usr/bin/tarnctl -q call audio.getVolume)" = 30 ] || { echo 'tarnctl of the package fails'; exit 1; }
(cd root/usr && find . ! -type d | sort) >packaged
(cd tree && find . ! -type d | sort) >installed
diff installed packaged
