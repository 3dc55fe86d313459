#!/bin/bash
# How the library is linked: nothing that the loader fills in stays writable, no code is relocated,
# overwritten stacks and buffers are noticed, and nothing is needed but the platform's libraries.
# Usage: hardening.sh LIBRARY VERSION SANITIZER OPTIMIZED
set -u
library=$1 version=$2 sanitizer=$3 optimized=$4
failed=0

fail() {
    echo "FAILED: $1"
    failed=1
}

header=$(readelf -lW "$library")
dynamic=$(readelf -dW "$library")
symbols=$(readelf --dyn-syms -W "$library")

grep -q GNU_RELRO <<<"$header" || fail 'no part becomes read-only'
grep -q 'FLAGS_1.*NOW' <<<"$dynamic" || fail 'symbols are bound later than at the start'
grep -q TEXTREL <<<"$dynamic" && fail 'code is relocated'
grep -Eq 'GNU_STACK.* RW ' <<<"$header" || fail 'the stack is executable'
grep -q ' __stack_chk_fail' <<<"$symbols" || fail 'no stack is protected'
if [ -z "$sanitizer" ] && [ "$optimized" = 1 ]; then
    grep -q ' UND __[a-z]*_chk@' <<<"$symbols" || fail 'no buffer is checked'
fi

# The plain name is a link to the one that programs remember, and that to the file.
folder=$(dirname "$library")
plain=libtarn_vendor_api.so
grep -q "SONAME.*\[$plain\.${version%%.*}\]" <<<"$dynamic" || fail 'the name to remember has no version'
[ "$(readlink "$folder/$plain")" = "$plain.${version%%.*}" ] || fail "$plain is no link"
[ "$(readlink "$folder/$plain.${version%%.*}")" = "$plain.$version" ] || fail "$plain.${version%%.*} is no link"

while read -r needed; do
    case $needed in
        libbinder.so | libhidlbase.so | libhost_properties.so | vendor.zunt.hwtarn@1.0.so) ;;
        liblog.so.0 | libutils.so.0) ;;
        libstdc++.so.6 | libgcc_s.so.1 | libc.so.6 | libm.so.6 | ld-linux*) ;;
        libasan.so.* | libubsan.so.* | libtsan.so.*) [ -n "$sanitizer" ] || fail "it needs $needed" ;;
        *) fail "it needs $needed" ;;
    esac
done < <(sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' <<<"$dynamic")

# A program or another library may put its own in their place.
for function in __android_log_print property_get property_set; do
    grep -Eq " UND $function(@.*)?$" <<<"$symbols" || fail "$function is not the platform's"
done
exit $failed
