#!/bin/sh
# The folders' directions: docs/architecture.md says which folder may include which, and this holds
# every #include against that table. A direction that nothing uses is refused as well, and so is a
# circle. Usage: folders.sh PROJECT
set -eu
cd "$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The table's rows: "| `folder/` | `may/`, `include/` | libraries |".
sed -n 's/^| `\([^`]*\/\)` |\([^|]*\)|\([^|]*\)|.*/\1|\2|\3/p' docs/architecture.md |
    tr -d '` ' >"$work/table"
[ -s "$work/table" ] || { echo 'docs/architecture.md has no table of folders'; exit 1; }

sources=$(cut -d/ -f1 "$work/table" | sort -u)
# shellcheck disable=SC2086  # a list of folders
find $sources -name '*.h' -o -name '*.cpp' -o -name '*.def' | sort >"$work/files"
# shellcheck disable=SC2086
grep -rnE --include='*.h' --include='*.cpp' --include='*.def' '^ *#include' $sources \
    >"$work/includes"

awk -F'|' -v table="$work/table" -v files="$work/files" -v edges="$work/edges" '
    BEGIN {
        while ((getline <table) > 0) {
            folders[$1] = 1
            count = split($2, names, ",")
            for (i = 1; i <= count; i++) allow($1, names[i])
            count = split($3, names, ",")
            for (i = 1; i <= count; i++) if (names[i] != "" && names[i] != "all") libraries[$1, names[i]] = 1
        }
        while ((getline <files) > 0) exists[$0] = 1
        split("host/binder/include/ simulator/include/", published, " ")
        OFS = ""
    }
    function allow(folder, name) {
        if (name == "all") anything[folder] = 1
        else if (name != "") allowed[folder, name] = 1
    }
    function folderOf(path) {
        while (path != "") {
            sub(/[^\/]*\/?$/, "", path)
            if (path in folders) return path
        }
        return ""
    }
    function refuse(what) { print what; failed = 1 }
    # The file that an include in quotes names, "" for one that no folder here has.
    function resolve(file, name,    folder, i) {
        folder = file
        sub(/[^\/]*$/, "", folder)
        if ((folder name) in exists) return folder name
        if (name in exists) return name
        for (i in published) if ((published[i] name) in exists) return published[i] name
        return ""
    }
    {
        split($0, parts, ":")
        file = parts[1]
        place = file ":" parts[2]
        from = folderOf(file)
        if (from == "") { refuse(place ": no row of the table has this folder"); next }
        if (match($0, /#include *<tarn\/[^>]*>/)) target = "include/tarn/"
        else if (match($0, /#include *<(json|sdbus-c\+\+)\//)) {
            library = substr($0, RSTART, RLENGTH)
            gsub(/#include *<|\/$/, "", library)
            if (library == "json") library = "jsoncpp"
            used[from, library] = 1
            if (!(from in anything) && !((from, library) in libraries))
                refuse(place ": " from " may not use " library)
            next
        } else if (match($0, /#include *"[^"]*"/)) {
            name = substr($0, RSTART, RLENGTH)
            gsub(/#include *"|"$/, "", name)
            path = resolve(file, name)
            if (path == "") { refuse(place ": no file " name); next }
            target = folderOf(path)
        } else next
        if (target == from) next
        used[from, target] = 1
        if (!(from in anything) && !((from, target) in allowed))
            refuse(place ": " from " may not include " target)
    }
    END {
        for (edge in allowed) {
            split(edge, ends, SUBSEP)
            print ends[1], " ", ends[2] >edges
            if (!(ends[2] in folders)) refuse("the table allows " ends[1] " to include " ends[2] ", which has no row")
            if (!(edge in used)) refuse("the table allows " ends[1] " to include " ends[2] ", which nothing does")
        }
        for (edge in libraries) if (!(edge in used)) {
            split(edge, ends, SUBSEP)
            refuse("the table allows " ends[1] " to use " ends[2] ", which nothing does")
        }
        exit failed
    }' "$work/includes"

# tsort names the folders of a circle.
tsort "$work/edges" >/dev/null
