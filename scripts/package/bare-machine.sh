# Sourced by the scripts that try something on a bare Debian 12. Needs root and debootstrap, and takes
# the packages from where this machine's apt takes its own. The bare system is kept in $VESTREL_BARE
# (by default /var/tmp/vestrel-bare) and copied for each try; the copy is deleted at the end.
# shellcheck shell=bash

bare=${VESTREL_BARE:-/var/tmp/vestrel-bare}

# The first archive of Debian that apt is set to use here: not the one of security updates.
mirror() {
    apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' |
        awk '$2 == "bookworm" && $3 == "main" { sub(/\/$/, "", $1); print $1; exit }'
}

makeBareSystem() {
    local archive
    [ ! -e "$bare/usr/bin/git" ] || return 0
    archive=$(mirror)
    if [ -z "$archive" ]; then
        echo "apt knows no archive of Debian 12; run apt-get update first" >&2
        exit 1
    fi
    echo "Making a bare Debian 12 in $bare from $archive"
    # Under another name until it is whole.
    rm -rf --one-file-system "$bare.part"
    mkdir -p "$bare.part"
    debootstrap --variant=minbase --include=git bookworm "$bare.part" "$archive" >/dev/null
    mv -T "$bare.part" "$bare"
}

leaveMachine() {
    umount "$machine/proc" 2>/dev/null || true
    # Never through a mount that stayed.
    mountpoint -q "$machine/proc" || rm -rf --one-file-system "$machine"
}

# Makes a copy of the bare system, which is called $machine until this script ends.
makeMachine() {
    makeBareSystem
    machine=$(mktemp -d /var/tmp/vestrel-machine.XXXXXX)
    trap leaveMachine EXIT
    cp -a "$bare/." "$machine"
    chmod 755 "$machine"
    cp /etc/resolv.conf "$machine/etc/resolv.conf"
    mount -t proc proc "$machine/proc"
}

# runInMachine COMMAND...: as root of that machine; of the environment, only what a network may need.
runInMachine() {
    env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin CI=true \
        ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
        chroot "$machine" "$@"
}
