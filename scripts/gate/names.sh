#!/usr/bin/env bash
# The names that a .cpp file keeps to itself are its folder's only ones: names.sh [TREE]
# The release compiles the files of a folder together, which takes half the time.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

# A folder's CMakeLists.txt names those that are compiled by themselves.
isAlone() {
    local rules
    rules=$(dirname "$1")/CMakeLists.txt
    grep -q SKIP_UNITY_BUILD_INCLUSION "$rules" 2>/dev/null && grep -qw "${1##*/}" "$rules"
}

files=()
while read -r file; do
    isAlone "$file" || files+=("$file")
done < <(sourcesOf src | grep '\.cpp$')
if [ ${#files[@]} -eq 0 ]; then
    verdict "no C++ files in $PWD" "" "there is nothing to look at"
fi
faults=$(awk -f "$gateFolder/names.awk" "${files[@]}")
verdict "$faults" "no name twice in the ${#files[@]} files that are compiled together" \
    "rename one, or share what both mean"
