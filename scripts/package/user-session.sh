# What a new user does first, for try-install.sh: user-session.sh FOLDER_OF_PROGRAMS COMMAND COMPANION
# Prints a line for each thing that it looked at.
# shellcheck shell=bash
set -euo pipefail
programs=$1
window=$2
companion=$3
cd

fail() {
    echo "FAILED: $*"
    exit 1
}

# waitFor WHAT COMMAND...: until the command succeeds, for a minute at most.
waitFor() {
    local what=$1 i
    shift
    for ((i = 0; i < 300; i++)); do
        if "$@" >/dev/null 2>&1; then return; fi
        sleep 0.2
    done
    xdotool search --onlyvisible --name '.' 2>/dev/null | xargs -r -n 1 xdotool getwindowname || true
    fail "no $what"
}

shown() { xdotool search --onlyvisible --name "$1"; }

# press KEY TITLE: there is no window manager here to give a window the keyboard.
press() {
    xdotool windowfocus "$(shown "$2" | tail -n 1)"
    sleep 1
    xdotool key "$1"
}

"$window" --version
"$companion" --version
for program in dbmender.exe PhotoReel.exe; do
    "$programs/$program" --help >/dev/null || fail "$program doesn't start"
done

"$companion" init --sample books
"$companion" register books
"$companion" update >/dev/null
echo "books: $("$companion" sql 'SELECT Count(*) FROM Lease' | tail -n 1) leases in the sample"
reports=$("$companion" reports | tail -n +2 | wc -l)
[ "$reports" -gt 20 ] || fail "only $reports reports are found"
"$companion" report 'Rent Roll' --output roll.pdf
[ "$(head -c 5 roll.pdf)" = %PDF- ] || fail "no PDF file was written"
echo "reports: $reports found, one printed into $(stat -c %s roll.pdf) bytes"

export DISPLAY=:77 XDG_RUNTIME_DIR=$HOME/.run
mkdir -m 700 "$XDG_RUNTIME_DIR"
Xvfb :77 -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
display=$!
trap 'kill $display 2>/dev/null || true' EXIT
waitFor display xdotool getmouselocation

"$window" &
pid=$!
waitFor 'main window' shown 'Sample'
sleep 2
press F1 Sample
waitFor 'help window' shown 'Vestrel Help'
echo "window: it opens, and F1 opens the help"
kill -TERM $pid
wait $pid || fail "the window program ended with $?"

# Books that can't be found start the repair tool, which is beside the program.
"$window" /altdb=nowhere &
waitFor 'notice that the books are missing' shown 'Database Notice'
press Return 'Database Notice'
repairTool() { pgrep -n -u "$(id -u)" -f "^$programs/dbmender.exe"; }
waitFor 'repair tool' repairTool
echo "repair tool: found beside the program and started"
kill "$(repairTool)"
