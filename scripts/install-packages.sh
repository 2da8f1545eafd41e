#!/usr/bin/env bash
# Installs the packages of the named groups of packages.txt that the machine lacks.
# Asks nothing and needs no network when all are there.
set -euo pipefail

list=$(dirname "${BASH_SOURCE[0]}")/packages.txt

if [ $# -eq 0 ]; then
    echo "usage: install-packages.sh GROUP... (a group of $list)" >&2
    exit 2
fi

packagesOf() {
    awk -v group="[$1]" '
        /^\[/ { inside = ($0 == group); found = found || inside; next }
        inside && NF && !/^#/ { print $1 }
        END { exit !found }' "$list" || {
        echo "$list has no group [$1]" >&2
        exit 2
    }
}

isInstalled() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

wanted=$(for group in "$@"; do packagesOf "$group"; done)
missing=()
for package in $wanted; do
    isInstalled "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

byHand="apt-get update && apt-get install --no-install-recommends ${missing[*]}"
if ! command -v apt-get >/dev/null; then
    echo "This machine has no apt-get. Vestrel is built with these Debian 12 packages:" \
        "${missing[*]}" >&2
    exit 1
fi
asRoot=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing, and there is no sudo to install them with." >&2
        echo "As root, run: $byHand" >&2
        exit 1
    fi
    asRoot=(sudo)
fi

echo "Installing from Debian: ${missing[*]}"
apt() {
    ${asRoot[@]+"${asRoot[@]}"} env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y -o DPkg::Lock::Timeout=300 "$@"
}
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { apt update && apt install --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    echo "The packages could not be installed (above, apt-get's own words)." >&2
    echo "To try it by hand, as root: $byHand" >&2
    exit 1
fi
