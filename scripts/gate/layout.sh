#!/usr/bin/env bash
# Forms, CMake and shell files are laid out alike: layout.sh [TREE]
# A form is indented by a blank for each element around it, as Designer writes it; CMake by two for
# each block, further lines of a command by more; shell as shfmt -i 4 -ci writes it.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

mapfile -t forms < <([ ! -d src ] || find src -name '*.ui' | sort)
mapfile -t cmake < <(find . -path ./build -prune -o \( -name CMakeLists.txt -o -name '*.cmake' \) -print |
    sed 's|^\./||' | sort)
mapfile -t shell < <({
    [ ! -d scripts ] || find scripts tests -name '*.sh'
    ls run test bench .ci/run share/desktop/vestrel share/completion/*
} 2>/dev/null | sort)

faults=$(
    [ ${#forms[@]} -eq 0 ] || awk -v kind=form -f "$gateFolder/layout.awk" "${forms[@]}"
    [ ${#cmake[@]} -eq 0 ] || awk -v kind=cmake -f "$gateFolder/layout.awk" "${cmake[@]}"
    [ ${#shell[@]} -eq 0 ] || shfmt -i 4 -ci -l "${shell[@]}" | sed 's|$|: run shfmt -i 4 -ci -w|'
)
verdict "$faults" "${#forms[@]} forms, ${#cmake[@]} CMake files, ${#shell[@]} scripts" \
    "lay these lines out as said"
