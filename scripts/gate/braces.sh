#!/usr/bin/env bash
# A braced value inside a designated initializer names its type: braces.sh [TREE]
# GCC 12 destroys the members of an unnamed nested list twice if a later initializer throws, and the
# process ends with a double free.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

mapfile -t files < <(sourcesOf src benchmarks)
if [ ${#files[@]} -eq 0 ]; then
    verdict "no C++ files in $PWD" "" "there is nothing to look at"
fi
faults=$(grep -nE '(^|[{(,])[[:space:]]*\.[A-Za-z_]+ *= *\{([^}]|$)' "${files[@]}" /dev/null |
    grep -Ev '^[^:]*:[0-9]+:[[:space:]]*//' || true)
verdict "$faults" "every nested list names its type in ${#files[@]} files" \
    'write ".debit = Party{...}" instead of ".debit = {...}"'
