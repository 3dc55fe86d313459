#!/bin/sh
# A program succeeds and prints these lines in this order; events may come between them.
# Usage: check.sh PROGRAM FILE
set -eu
output=$("$1")
printf '%s\n' "$output" | diff "$2" - | grep '^<' >&2 || exit 0
printf 'the lines above are missing in:\n%s\n' "$output" >&2
exit 1
