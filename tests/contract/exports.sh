#!/bin/bash
# The library exports what exports.txt lists, by the names that a C++ programmer reads: a missing one
# breaks applications, another one is a promise that nobody made. Usage: exports.sh LIBRARY LIST FOLDER
set -eu
export LC_ALL=C
library=$1 list=$2 folder=$3
mkdir -p "$folder"
# One name may stand for several symbols, as a constructor has two.
nm -DC --defined-only "$library" | sed -E 's/^[0-9a-f]+ . //; s/\[abi:[a-z0-9]+\]//' | sort -u >"$folder/exported"
sed -e '/^#/d' -e '/^$/d' "$list" | sort >"$folder/listed"
diff --label exports.txt --label exported -u0 "$folder/listed" "$folder/exported"
