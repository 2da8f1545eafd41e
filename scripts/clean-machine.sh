#!/usr/bin/env bash
# Tries a command in a fresh clone of HEAD on a bare Debian 12, where only git, bash and apt are:
# clean-machine.sh COMMAND [ARGUMENT]..., for example clean-machine.sh ./test
# Needs root and debootstrap, and takes the packages from where this machine's apt takes its own.
# The bare system is kept in $VESTREL_BARE (by default /var/tmp/vestrel-bare)
# and copied for each try; the copy is deleted at the end.
set -euo pipefail

if [ $# -eq 0 ]; then
    echo "usage: clean-machine.sh COMMAND [ARGUMENT]..." >&2
    exit 2
fi

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bare=${VESTREL_BARE:-/var/tmp/vestrel-bare}

# The first archive of Debian that apt is set to use here: not the one of security updates.
mirror() {
    apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' |
        awk '$2 == "bookworm" && $3 == "main" { sub(/\/$/, "", $1); print $1; exit }'
}

if [ ! -e "$bare/usr/bin/git" ]; then
    archive=$(mirror)
    if [ -z "$archive" ]; then
        echo "apt knows no archive of Debian 12; run apt-get update first" >&2
        exit 1
    fi
    echo "Making a bare Debian 12 in $bare from $archive"
    mkdir -p "$bare"
    debootstrap --variant=minbase --include=git bookworm "$bare" "$archive" >/dev/null
fi

machine=$(mktemp -d /var/tmp/vestrel-machine.XXXXXX)
leave() {
    umount "$machine/proc" 2>/dev/null || true
    # Never through a mount that stayed.
    mountpoint -q "$machine/proc" || rm -rf --one-file-system "$machine"
}
trap leave EXIT
cp -a "$bare/." "$machine"
cp /etc/resolv.conf "$machine/etc/resolv.conf"
mount -t proc proc "$machine/proc"
git clone -q --no-local "$project" "$machine/root/vestrel"

# Of the environment, only what a network may need.
env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin CI=true \
    ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
    chroot "$machine" bash -c 'cd /root/vestrel && exec "$@"' in-clone "$@" </dev/null
