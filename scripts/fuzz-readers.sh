#!/usr/bin/env bash
# Feeds both readers of report definitions with mutated files, under sanitizers:
# fuzz-readers.sh [COUNT [SEED]]   (1,000,000 inputs without a count)
# Needs a build of the preset "test", whose libraries it links for what the readers stand on.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=build/test
program=$build/fuzz-readers
libraries=$(find $build/src -name 'lib*.a' ! -name 'lib*_ui.a' ! -name libreports.a)
# shellcheck disable=SC2086
g++ -std=c++20 -O1 -g -fsanitize=address,undefined -fno-sanitize-recover=all -DFMT_SHARED -Isrc \
    tests/reports/fuzz/FuzzReaders.cpp src/reports/*.cpp -o $program \
    -Wl,--start-group $libraries -Wl,--end-group -lSQLiteCpp -lsqlite3 -lfmt -lz \
    $(pkg-config --libs harfbuzz harfbuzz-subset fribidi)
$program share/Reports "${1:-1000000}" "${2:-1}"
