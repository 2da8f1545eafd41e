#!/usr/bin/env bash
# Writes the manual page of a program from what its --help and --version print:
# man-page.sh PROGRAM NAME [SEE_ALSO]   (SEE_ALSO as in "vestrel(1), dbmender(1)")
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")

program=$1
name=$2
seeAlso=${3:-}

version=$("$program" --version)
version=${version##* }

# The help, then the help of each command, each after a line that names it.
helps() {
    local help command
    help=$("$program" --help)
    printf '%s\n' "$help"
    awk '/^Subcommands:$/ { inside = 1; next } /^$/ { inside = 0 } inside && /^  [a-z]/ { print $1 }' \
        <<<"$help" | while read -r command; do
        printf '@command %s\n' "$command"
        "$program" "$command" --help </dev/null
    done
}

helps | awk -v name="$name" -v version="$version" -v seeAlso="$seeAlso" \
    -f "$here/man-page.awk"
