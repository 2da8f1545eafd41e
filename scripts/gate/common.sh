# Sourced by every check. A check is given the tree that it looks at, by default the project it
# stands in; it prints what is wrong, one line a fault, then its verdict, and fails if there was one.
# shellcheck shell=bash
set -euo pipefail

check=$(basename "$0" .sh)
gateFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# enterTree [TREE]
enterTree() {
    local tree=${1:-.}
    [ "$tree" != . ] || tree=$gateFolder/../..
    cd "$tree"
}

# Our C++ files below the folders named.
sourcesOf() {
    local folder
    for folder in "$@"; do
        [ ! -d "$folder" ] || find "$folder" -type f \( -name '*.cpp' -o -name '*.h' \)
    done | sort
}

# verdict FAULTS PASSED FAILED: FAULTS are the lines to print, none if all is well.
verdict() {
    if [ -n "$1" ]; then
        printf '%s\n' "$1"
        echo "gate: $check: FAILED: $3"
        exit 1
    fi
    echo "gate: $check: ok: $2"
}
