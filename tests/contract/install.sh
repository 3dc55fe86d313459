#!/bin/sh
# What is installed runs by itself, from any folder. Usage: install.sh CMAKE BUILD FOLDER
set -eu
cmake=$1 build=$2 folder=$3
rm -rf "$folder"
"$cmake" --install "$build" --prefix "$folder/first" >/dev/null
mv "$folder/first" "$folder/moved"
cd "$folder/moved"

expect() {  # expect WANTED GOT
    [ "$1" = "$2" ] || { echo "expected '$1', got '$2'"; exit 1; }
}

expect 30 "$(bin/tarnctl -q call audio.getVolume)"
# It is the installed board that is served.
sed -i '/"audio.volume"/s/"initial": 30/"initial": 31/' share/tarn/boards/default/AudioCtrl.json
expect 31 "$(bin/tarnctl -q call audio.getVolume)"
bin/tarn-board --version

for file in bin/* lib*/*.so; do
    ldd "$file" >libraries
    if grep -F -e "$build/lib" -e 'not found' libraries; then
        echo "$file needs the libraries above"
        exit 1
    fi
done
[ -f include/tarn/ITarnManager.h ]
