#!/usr/bin/env bash
# No file is so long that it must be two things under one name; shows how long they are:
# sizes.sh [TREE]
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

kLong=350
kTooLong=400

sizes=$({
    sourcesOf src tests benchmarks
    find scripts cmake -type f 2>/dev/null || true
} | xargs -r wc -l | awk '$2 != "total" { print $1, $2 }' | sort -n)
if [ -z "$sizes" ]; then
    verdict "no files in $PWD" "" "there is nothing to look at"
fi

awk -v long=$kLong '
    { lines[NR] = $1; small += ($1 <= 350) }
    $1 > long { print $2 ": " $1 " lines, which is long" }
    END {
        printf "gate: sizes: %d files, median %d lines, %d%% up to 350, longest %d (%s)\n",
            NR, lines[int((NR + 1) / 2)], 100 * small / NR, lines[NR], $2
    }' <<<"$sizes"
faults=$(awk -v most=$kTooLong '$1 > most { print $2 ": " $1 " lines" }' <<<"$sizes")
verdict "$faults" "none above $kTooLong lines" "split these files: each is two things under one name"
