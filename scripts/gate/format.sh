#!/usr/bin/env bash
# Every file stands as clang-format lays it out: format.sh [TREE]
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

mapfile -t files < <(sourcesOf src tests benchmarks)
if [ ${#files[@]} -eq 0 ]; then
    verdict "no C++ files in $PWD" "" "there is nothing to look at"
fi
# Only the name of an ill-formatted file is of use: the remedy is the same for all of its lines.
faults=$(printf '%s\n' "${files[@]}" |
    xargs -P "$(nproc)" -n 20 clang-format --dry-run -Werror --ferror-limit=1 2>&1 |
    awk '/error:/ { print; seen = 1 } /not found|[Ii]nvalid|No such/ { print }' | sort -u) || true
verdict "$faults" "${#files[@]} files" "run clang-format -i on these files"
