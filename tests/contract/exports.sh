#!/bin/sh
# The library exports its four logging functions under unmangled names, and no other C symbol.
set -eu
nm -D --defined-only "$1" | awk '$2 == "T" && $3 !~ /^_/ {print $3}' | sort >"$2.got"
printf '%s\n' TarnLog Tarn_Log_Init getLogLevel setLogLevel | LC_ALL=C sort >"$2.want"
LC_ALL=C sort -o "$2.got" "$2.got"
diff "$2.want" "$2.got"
