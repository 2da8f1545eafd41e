#!/usr/bin/env bash
# Makes a sample portfolio and registers it as the default database, unless one is registered
# already: make-sample.sh VESTRELCTL [--today mm/dd/yyyy]
# What stands in the sample's place from before is registered as it is, never overwritten.
set -euo pipefail

vestrelctl=("$@")
registry=${XDG_CONFIG_HOME:-$HOME/.config}/Vestrel/registry.json
sample=${XDG_DATA_HOME:-$HOME/.local/share}/Vestrel/sample

# The second name is where a database stood before databases had names; the program moves it over.
if [ -e "$registry" ] && grep -Eqi '"(Default|DBPath)"[[:space:]]*:[[:space:]]*"[^"]+"' "$registry"; then
    exit 0
fi

# The database appears when it is whole: an interrupted start leaves none. It is made where it stays,
# since a sample that was moved counts as anybody's books.
if [ ! -e "$sample/Vestrel.mdb" ]; then
    echo "Making a sample portfolio in $sample"
    "${vestrelctl[@]}" init --sample "$sample" </dev/null
fi
"$1" register "$sample" </dev/null
