#!/usr/bin/env bash
# Makes the pictures of the README, with the real program on a sample portfolio, into
# docs/screenshots: screenshots.sh [FOLDER_OF_PROGRAMS]
# Without a folder it builds the release and takes that. The display is a virtual one, and the
# settings are thrown away afterwards.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/install-packages.sh pictures
programs=${1:-build/release/bin}
[ $# -gt 0 ] || scripts/build.sh release build window
out=docs/screenshots
kDay=06/12/2026
kDisplay=:93

scratch=$(mktemp -d)
running=()
leave() {
    [ ${#running[@]} -eq 0 ] || kill "${running[@]}" 2>/dev/null || true
    wait
    rm -rf "$scratch"
}
trap leave EXIT
export XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data XDG_CACHE_HOME=$scratch/cache
export XDG_RUNTIME_DIR=$scratch/run LC_ALL=C.UTF-8 DISPLAY=$kDisplay QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
mkdir -m 700 "$scratch/run"

# waitFor TITLE: prints the window whose title matches, once it is shown.
waitFor() {
    local i window
    for ((i = 0; i < 600; i++)); do
        window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1 || true)
        if [ -n "$window" ]; then
            sleep 2
            echo "$window"
            return
        fi
        sleep 0.2
    done
    echo "no window '$1' was shown; there are:" >&2
    xdotool search --onlyvisible --name '.' 2>/dev/null | xargs -r -n 1 xdotool getwindowname >&2
    return 1
}

# picture WINDOW NAME WIDTH HEIGHT
picture() {
    xdotool windowsize --sync "$1" "$3" "$4" windowmove "$1" 20 40 windowactivate --sync "$1"
    xdotool mousemove 1590 1190
    sleep 3
    import -frame -window "$1" "$scratch/$2.png"
    pngquant --force --strip --speed 1 --output "$out/$2.png" 128 "$scratch/$2.png"
}

keys() {
    xdotool key --delay 150 "$@"
    sleep 1
}

Xvfb $kDisplay -screen 0 1600x1200x24 -nolisten tcp >/dev/null 2>&1 &
running+=($!)
sleep 2
openbox >/dev/null 2>&1 &
running+=($!)

"$programs/vestrelctl" --today $kDay init --sample "$scratch/books"
"$programs/vestrelctl" register "$scratch/books"
"$programs/kestrom" --today $kDay >"$scratch/said" 2>&1 &
running+=($!)

mkdir -p $out
main=$(waitFor 'Sample')
picture "$main" home 1200 760

# The third line of the home page is rent that is late.
keys Home Down Down Return
lease=$(waitFor '^Lease')
xdotool windowactivate --sync "$lease"
keys ctrl+Tab ctrl+Tab ctrl+Tab ctrl+Tab
picture "$lease" lease 900 520
keys Escape

xdotool windowactivate --sync "$main"
keys alt+t g
reports=$(waitFor '^Reports')
xdotool windowactivate --sync "$reports"
# All reports, then from the list to the box above it.
keys alt+a shift+Tab
xdotool type --delay 60 'Rent Roll'
sleep 1
keys Return
picture "$(waitFor 'Report Viewer')" report 900 700
du -h $out/*.png
