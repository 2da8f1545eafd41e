#!/usr/bin/env bash
# Runs what ./test leaves out because it takes long, and prints how long each part took:
# ci-full.sh [PART]...   (without a part: all of them)
#   logic     builds and tests all but the window program, where no Qt is looked for
#   sanitize  builds and tests everything, stopping at memory errors and undefined behaviour
#   bench     builds and runs every benchmark against its limit
#   tidy      clang-tidy on every file
#   programs  two programs at random on the same books, for ten minutes
#   package   makes the package and the folder that users install, and checks them
#   install   installs, uses and removes both on a bare Debian 12 (needs root)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

run() {
    case $1 in
        logic) ./test --no-window --no-gate ;;
        sanitize) ./test --sanitize --no-gate ;;
        bench) ./bench ;;
        tidy)
            scripts/build.sh test build test bench window
            scripts/gate/tidy.sh --all . build/test
            ;;
        programs)
            scripts/build.sh test build test bench window
            scripts/two-programs.sh build/test/bin/vestrelctl
            ;;
        package) scripts/package.sh ;;
        install) scripts/try-install.sh ;;
        *)
            echo "there is no part $1" >&2
            return 2
            ;;
    esac
}

[ $# -gt 0 ] || set -- logic sanitize bench tidy programs package install
figures=()
failed=()
for part in "$@"; do
    echo
    echo "== $part"
    SECONDS=0
    run "$part" || failed+=("$part")
    figures+=("$part: $SECONDS s")
done

echo
printf '%s\n' "${figures[@]}"
if [ ${#failed[@]} -gt 0 ]; then
    echo "FAILED: ${failed[*]}"
    exit 1
fi
