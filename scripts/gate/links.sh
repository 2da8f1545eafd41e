#!/usr/bin/env bash
# A link line names only what its folder includes: links.sh [TREE]
# Looks at the rooms that a room below src USES; it is made of the C++ files of its folder.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

mapfile -t lists < <(find src -name CMakeLists.txt 2>/dev/null | sort)
if [ ${#lists[@]} -eq 0 ]; then
    verdict "no CMakeLists.txt in $PWD" "" "there is nothing to look at"
fi

# Prints the targets that the link lines of a file name, a line each.
namedIn() {
    sed 's/#.*//' "$1" | tr '\n' ' ' |
        grep -oE 'vestrel_(room|screens)\([^)]*\)' | tr -d ')' |
        awk '{
            for (i = 2; i <= NF; i++) {
                if ($i == "USES" || $i == "LIBRARIES") taking = $i == "USES"
                else if (taking) print $i
            }
        }' || true
}

# The pattern that an include of the target matches.
patternOf() {
    case $1 in
        core_*) echo "\"core/${1#core_}/" ;;
        platform_qt) echo '"platform/qt/' ;;
        platform_preview) echo '"platform/qt/preview/' ;;
        platform_dialect) echo '"platform/database/dialect/' ;;
        platform_charts) echo "\"platform/qt/${1#platform_}/" ;;
        platform_pdf | platform_fonts) echo "\"platform/printing/${1#platform_}/" ;;
        platform_*) echo "\"platform/${1#platform_}/" ;;
        *_ui) echo "\"${1%_ui}/screens/" ;;
        *) echo "\"$1/" ;;
    esac
}

faults=$(
    for list in "${lists[@]}"; do
        folder=$(dirname "$list")
        for target in $(namedIn "$list"); do
            pattern=$(patternOf "$target")
            grep -rqhE --include='*.cpp' --include='*.h' "^[[:space:]]*#[[:space:]]*include $pattern" \
                "$folder" || echo "$list: links $target, which nothing in $folder includes"
        done
    done
)
verdict "$faults" "${#lists[@]} lists link only what is included" "take these out of the link lines"
