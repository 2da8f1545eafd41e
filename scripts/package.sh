#!/usr/bin/env bash
# Makes what users install, into build/package, and checks it: package.sh [PART]...
#   deb      a Debian package, checked by lintian and the validators of desktop files
#   tarball  a folder, packed, that runs from wherever it is unpacked, with the libraries it needs
# Without a part: both. Builds the release first, the one that ./run starts; VESTREL_PRESET names
# another build to pack, to try the packing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

[ $# -gt 0 ] || set -- deb tarball
for part in "$@"; do
    case $part in
        deb | tarball) ;;
        *)
            echo "usage: package.sh [deb | tarball]..." >&2
            exit 2
            ;;
    esac
done

preset=${VESTREL_PRESET:-release}
scripts/install-packages.sh package
[ "$preset" != release ] || scripts/build.sh release build window

out=build/package
mkdir -p $out
version=$(sed -nE 's/^project\(Vestrel VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
arch=$(dpkg --print-architecture)

# One version, wherever it is written.
checkVersion() {
    local file there
    there=$(dpkg-parsechangelog -S Version)
    [ "$there" = "$version" ] || {
        echo "debian/changelog has version $there, CMakeLists.txt $version" >&2
        exit 1
    }
    for file in CHANGELOG.md share/desktop/example.vestrel.Vestrel.metainfo.xml; do
        grep -qE "(## |<release version=\")${version//./\\.}" "$file" || {
            echo "$file doesn't tell of version $version" >&2
            exit 1
        }
    done
}

# What debhelper leaves in the tree; its own cleaning would also delete files of the user.
removeTraces() {
    rm -rf debian/vestrel debian/.debhelper debian/files debian/debhelper-build-stamp \
        debian/vestrel.substvars debian/vestrel.debhelper.log
}

makeDeb() {
    rm -f $out/vestrel_*.deb
    removeTraces
    # debhelper gives the build another home, where the compiler's cache is not.
    CCACHE_DIR=$(ccache -k cache_dir) fakeroot debian/rules binary
    removeTraces
}

checkDeb() {
    local deb=$out/vestrel_${version}_$arch.deb tree=$out/tree page
    rm -rf $tree
    dpkg-deb -x "$deb" $tree
    lintian --fail-on error,warning --tag-display-limit 0 --allow-root "$deb"
    appstreamcli validate --no-net $tree/usr/share/metainfo/*.xml
    desktop-file-validate $tree/usr/share/applications/*.desktop
    for page in $tree/usr/share/man/man1/*.gz; do
        LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" \
            2>&1 >/dev/null | sed "s|^|$page: |" >$out/man.faults
        if [ -s $out/man.faults ]; then
            cat $out/man.faults >&2
            return 1
        fi
    done
    # The kinds of files must be understood by the desktop's own tool.
    cp -r $tree/usr/share/mime $out/mime
    update-mime-database $out/mime
    rm -rf $out/mime $out/man.faults $tree
    dpkg-deb --info "$deb" | sed -n '/^ *Depends/p'
    du -h "$deb"
}

for part in "$@"; do
    echo "== $part"
    case $part in
        deb)
            checkVersion
            makeDeb
            checkDeb
            ;;
        tarball)
            scripts/package/portable.sh "build/$preset" "$out/vestrel-$version-$arch"
            tar -C $out --owner=0 --group=0 -cJf "$out/vestrel-$version-$arch.tar.xz" \
                "vestrel-$version-$arch"
            du -sh "$out/vestrel-$version-$arch" "$out/vestrel-$version-$arch.tar.xz"
            rm -rf "$out/vestrel-$version-$arch"
            ;;
    esac
done
