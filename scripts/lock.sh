# For scripts that work in $build, sourced by them: one at a time. Compilers hold the lock too, so
# that those which outlive a killed build are waited for.
mkdir -p "$build"
exec 9>"$build/lock"
flock --nonblock 9 || {
    echo "waiting for another make in $build"
    flock 9
}
