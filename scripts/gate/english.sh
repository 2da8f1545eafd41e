#!/usr/bin/env bash
# Comments, messages and help are plain English: english.sh [TREE]
# CONTRIBUTING.md has the words to use. A text that must stay as it is can be listed in
# scripts/gate/english-allowed.txt: FILE, a tab, and a part of the line.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

mapfile -t files < <(
    sourcesOf src tests benchmarks
    [ ! -d src ] || find src -name '*.ui'
    find scripts cmake share/help docs -type f \
        \( -name '*.sh' -o -name '*.awk' -o -name '*.cmake' -o -name '*.html' -o -name '*.md' \) 2>/dev/null
    find . -maxdepth 1 -name '*.md' | sed 's|^\./||'
)
if [ ${#files[@]} -eq 0 ]; then
    verdict "no files in $PWD" "" "there is nothing to look at"
fi
faults=$(awk -f "$gateFolder/english.awk" "${files[@]}" </dev/null)
allowed=scripts/gate/english-allowed.txt
if [ -s "$allowed" ] && [ -n "$faults" ]; then
    faults=$(awk -F '\t' '
        NR == FNR { file[NR] = $1; part[NR] = $2; count = NR; next }
        {
            for (i = 1; i <= count; i++)
                if (index($0, file[i] ":") == 1 && index($0, part[i])) next
            print
        }' "$allowed" - <<<"$faults")
fi
verdict "$faults" "${#files[@]} files" "write these plainly, with the words of CONTRIBUTING.md"
