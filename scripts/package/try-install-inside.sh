# Runs as root of a bare machine, for try-install.sh: installs the part that it is given, lets a user
# work with it, and removes it.
# shellcheck shell=bash
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

quietly() {
    "$@" >/tmp/log 2>&1 || {
        tail -n 30 /tmp/log
        exit 1
    }
}

fail() {
    echo "FAILED: $*"
    exit 1
}

# Everything that was written after FILE, but what the user keeps, the system's own and /tmp.
writtenSince() {
    find / -xdev \( -path /proc -o -path /tmp -o -path /home -o -path /run -o -path /dev -o -path /var/tmp \) \
        -prune -o -type f -newer "$1" -print
}

# work USER FOLDER_OF_PROGRAMS COMMAND COMPANION: a user's session, which must write nowhere else.
work() {
    local user=$1 written
    touch /tmp/before
    sleep 1
    su - "$user" -c "bash /tmp/user-session.sh '$2' '$3' '$4'"
    written=$(writtenSince /tmp/before)
    [ -z "$written" ] || fail "written outside the user's folders: $written"
    echo "written outside the user's folders: nothing"
    (cd "/home/$user" && find . -type f ! -path './.cache/*' | sed -E 's|^\./||; s|/[^/]*$|/|' |
        sort | uniq -c | sed 's/^/  /')
}

# Nothing may be missing that the programs or the parts of Qt link to.
checkLinks() {
    local missing
    missing=$(find "$@" -type f \( -name '*.so*' -o -executable \) -exec ldd {} + 2>/dev/null |
        grep 'not found' | sort -u || true)
    [ -z "$missing" ] || fail "libraries are missing: $missing"
    echo "libraries: all found"
}

installTools() {
    quietly apt-get install -y --no-install-recommends xvfb xauth xdotool procps
    mkdir -p -m 1777 /tmp/.X11-unix
}

tryDeb() {
    local deb size sum
    deb=$(ls /tmp/vestrel_*.deb)
    size=$(dpkg-query -W -f '${Installed-Size}\n' | awk '{ sum += $1 } END { print sum }')
    quietly apt-get update
    quietly apt-get install -y --no-install-recommends "$deb"
    size=$(($(dpkg-query -W -f '${Installed-Size}\n' | awk '{ sum += $1 } END { print sum }') - size))
    echo "package: $(du -h "$deb" | cut -f 1), installed with all that it needs $((size / 1024)) MB"
    checkLinks /usr/lib/vestrel /usr/lib/x86_64-linux-gnu/qt6/plugins/platforms/libqxcb.so \
        /usr/lib/x86_64-linux-gnu/qt6/plugins/sqldrivers
    [ -e /usr/share/applications/vestrel.desktop ] || fail "no desktop entry"
    grep -q vestrel-books /usr/share/mime/globs2 || fail "the desktop doesn't know the books' kind of file"
    installTools
    quietly useradd -m -s /bin/bash anna
    work anna /usr/lib/vestrel vestrel vestrelctl

    sum=$(sha256sum /home/anna/books/Vestrel.mdb)
    quietly apt-get purge -y vestrel
    [ "$sum" = "$(sha256sum /home/anna/books/Vestrel.mdb)" ] || fail "the books were changed"
    [ -z "$(find / -xdev -path /proc -prune -o -path /home -prune -o -path /tmp -prune \
        -o -iname '*vestrel*' -print)" ] || fail "removed, but something stays"
    echo "removed: the books are as they were, and nothing else is left"
}

tryTarball() {
    local folder
    # The libraries that every desktop has.
    quietly apt-get update
    quietly apt-get install -y --no-install-recommends xz-utils libegl1 libgl1 libopengl0 \
        libfontconfig1 libdbus-1-3 libglib2.0-0 libx11-xcb1 libsm6 libxkbcommon0 libwayland-cursor0 \
        libwayland-egl1 libcups2
    installTools
    quietly useradd -m -s /bin/bash bert
    su - bert -c 'mkdir Programs && tar -C Programs -xf /tmp/vestrel-*.tar.xz'
    folder=$(ls -d /home/bert/Programs/vestrel-*)
    echo "tarball: $(du -sh "$folder" | cut -f 1) unpacked"
    checkLinks "$folder"
    work bert "$folder" "$folder/vestrel" "$folder/vestrelctl"
}

case $1 in
    deb) tryDeb ;;
    tarball) tryTarball ;;
esac
