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

if [ ! -e "$sample" ]; then
    echo "Making a sample portfolio in $sample"
    mkdir -p "$(dirname "$sample")"
    # Under another name until it is whole, so that an interrupted start leaves no half portfolio.
    unfinished=$(mktemp -d "$sample.XXXXXX")
    trap 'rm -rf "$unfinished"' EXIT
    "${vestrelctl[@]}" init --sample "$unfinished/sample" </dev/null
    mv -T "$unfinished/sample" "$sample"
fi
"$1" register "$sample" </dev/null
