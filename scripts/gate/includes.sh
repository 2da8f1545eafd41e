#!/usr/bin/env bash
# Every #include of src is one that the floor table of the architecture page allows:
# includes.sh [TREE]
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

page=docs/architecture.md
mapfile -t files < <(sourcesOf src)
if [ ${#files[@]} -eq 0 ]; then
    verdict "no C++ files in $PWD" "" "there is nothing to look at"
fi
faults=$(awk -f "$gateFolder/includes.awk" "$page" "${files[@]}")
verdict "$faults" "${#files[@]} files keep to the floors" \
    "a room uses rooms of lower floors only, see the floor table of $page"
