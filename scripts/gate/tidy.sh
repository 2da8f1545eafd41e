#!/usr/bin/env bash
# What changed passes clang-tidy: tidy.sh [--all] [TREE [BUILD_DIR]]
# Changed is what differs from origin/main, or, where that is the same as HEAD, from the commit before
# it; with --all, everything. A changed header is looked at through
# one file that includes it. A file that passed is not looked at again until it or a header of it
# changes. Without --all, no file is begun after five minutes; it says how many were left.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

tidy=clang-tidy-19
kSeconds=300

all=no
if [ "${1:-}" = --all ]; then
    all=yes
    kSeconds=1000000
    shift
fi
enterTree "$@"
build=${2:-build/test}
remedy="mend what clang-tidy says (above); scripts/gate/tidy.sh looks at it alone"

if ! command -v $tidy >/dev/null; then
    verdict "$tidy is missing: scripts/install-packages.sh test installs it" "" "nothing was looked at"
fi
if [ ! -f "$build/compile_commands.json" ]; then
    verdict "$build holds no compile_commands.json: configure it first" "" "nothing was looked at"
fi

changedFiles() {
    local base
    if [ "$all" = yes ] || ! git rev-parse -q --verify HEAD >/dev/null 2>&1; then
        sourcesOf src tests benchmarks
        return
    fi
    base=$(git merge-base HEAD origin/main 2>/dev/null || true)
    if [ -z "$base" ] || [ "$base" = "$(git rev-parse HEAD)" ]; then
        base=$(git rev-parse -q --verify HEAD~1 || true)
    fi
    # A history of one commit: everything differs from the empty tree.
    [ -n "$base" ] || base=$(git hash-object -t tree /dev/null)
    git diff --name-only --diff-filter=d "$base"
    git ls-files --others --exclude-standard
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
changedFiles >"$work/changed"
if grep -qx '.clang-tidy' "$work/changed"; then
    sourcesOf src tests benchmarks >"$work/changed"
fi

# A line a unit: the .cpp file, then the headers of ours that it includes, however deep.
# The program stands first, for when the time runs out.
mapfile -t files < <(sourcesOf src && sourcesOf benchmarks && sourcesOf tests)
if [ ${#files[@]} -eq 0 ]; then
    verdict "no C++ files in $PWD" "" "there is nothing to look at"
fi
awk -f "$gateFolder/units.awk" "$work/changed" "${files[@]}" >"$work/units"

# Units that this build compiles and that haven't passed as they stand, each with the name under
# which its passing is kept.
mkdir -p "$build/tidy"
total=0
while read -r -a unit; do
    grep -qF "/${unit[0]}\"" "$build/compile_commands.json" || continue
    total=$((total + 1))
    key=$(cat .clang-tidy "${unit[@]}" | sha256sum | cut -c1-40)
    [ -e "$build/tidy/$key" ] || echo "${unit[0]} $build/tidy/$key"
done <"$work/units" >"$work/todo"

export work tidy build deadline=$(($(date +%s) + kSeconds))
# shellcheck disable=SC2016
xargs -r -P "$(nproc)" -L 1 bash -c '
    if [ "$(date +%s)" -ge "$deadline" ]; then
        echo "$1" >>"$work/left"
    elif $tidy -p "$build" --quiet --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Wno-ignored-gch "$1" \
        >"$work/said.$$" 2>"$work/errors.$$"; then
        touch "$2"
    else
        # What went wrong is on one stream or the other, and must not be lost with either.
        { cat "$work/said.$$"; grep -hE "error" "$work/errors.$$"; echo "$1: failed"; } \
            >"$work/faults.$$"
    fi' tidy-one <"$work/todo" || true

faults=$(cat "$work"/faults.* 2>/dev/null || true)
left=0
[ ! -e "$work/left" ] || left=$(wc -l <"$work/left")
summary="$((total - left)) of $total changed units looked at"
[ "$left" -eq 0 ] || summary+=", as $kSeconds seconds were over, the others when it is run again"
verdict "$faults" "$summary" "$summary; $remedy"
