#!/usr/bin/env bash
# Makes a build of the project from nothing: build.sh PRESET GROUP... installs the groups of
# packages, configures the preset and builds all of it, into build/PRESET.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
preset=$1
shift

scripts/install-packages.sh "$@"

# Lets clones at other places, and other presets with the same flags, share what was compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

cmake --preset "$preset" --log-level=WARNING >/dev/null
cmake --build --preset "$preset"
