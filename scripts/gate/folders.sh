#!/usr/bin/env bash
# The folder list of the architecture page is the tree of src: folders.sh [TREE]
# A row of the list begins with the folder's name: | `src/core` | ...
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

page=docs/architecture.md
told=$(sed -nE 's/^\| `(src[^`]*)` .*/\1/p' "$page" | sort)
there=$(find src -type f -printf '%h\n' | sort -u)
faults=$(
    comm -13 <(echo "$told") <(echo "$there") | sed "s|.*|&: not listed in $page|"
    comm -23 <(echo "$told") <(echo "$there") | sed "s|.*|&: listed in $page, but not there|"
    uniq -d <<<"$told" | sed "s|.*|&: listed twice in $page|"
)
verdict "$faults" "$(wc -l <<<"$there") folders" "make the folder list of $page match the tree"
