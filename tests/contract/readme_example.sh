#!/bin/sh
# The README shows the example program as it is compiled.
set -eu
cd "$1"
awk '/^```cpp$/ {inside = 1; next} /^```$/ {inside = 0} inside' README.md | diff - examples/volume.cpp
