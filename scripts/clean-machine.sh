#!/usr/bin/env bash
# Tries a command in a fresh clone of HEAD on a bare Debian 12, where only git, bash and apt are:
# clean-machine.sh COMMAND [ARGUMENT]..., for example clean-machine.sh ./test
# Needs root and debootstrap; scripts/package/bare-machine.sh says where the bare system comes from.
set -euo pipefail

if [ $# -eq 0 ]; then
    echo "usage: clean-machine.sh COMMAND [ARGUMENT]..." >&2
    exit 2
fi

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$project/scripts/package/bare-machine.sh"

makeMachine
git clone -q --no-local "$project" "$machine/root/vestrel"
runInMachine bash -c 'cd /root/vestrel && exec "$@"' in-clone "$@" </dev/null
