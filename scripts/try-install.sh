#!/usr/bin/env bash
# Installs the package on a bare Debian 12, uses it there as a user who is not root, and removes it;
# then the same with the tarball: try-install.sh [deb | tarball]...
# Needs root, debootstrap and what package.sh made. Prints a line for each thing that it looked at.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/package/bare-machine.sh

[ $# -gt 0 ] || set -- deb tarball
version=$(sed -nE 's/^project\(Vestrel VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
arch=$(dpkg --print-architecture)

for part in "$@"; do
    case $part in
        deb) file=build/package/vestrel_${version}_$arch.deb ;;
        tarball) file=build/package/vestrel-$version-$arch.tar.xz ;;
        *)
            echo "usage: try-install.sh [deb | tarball]..." >&2
            exit 2
            ;;
    esac
    [ -f "$file" ] || {
        echo "there is no $file: run scripts/package.sh first" >&2
        exit 1
    }
    echo "== $part"
    # Each on a machine that has seen nothing of the other.
    makeMachine
    cp "$file" scripts/package/user-session.sh "$machine/tmp/"
    runInMachine bash -s "$part" <scripts/package/try-install-inside.sh
    leaveMachine
done
