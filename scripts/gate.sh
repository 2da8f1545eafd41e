#!/usr/bin/env bash
# Runs every check of the gate, and says at the end which failed: gate.sh [BUILD_DIR]
# The build directory is the one whose compile commands clang-tidy reads.
set -euo pipefail

checks=$(dirname "${BASH_SOURCE[0]}")/gate
build=${1:-build/test}

failed=()
for check in format layout includes names links clock braces folders sizes help english; do
    "$checks/$check.sh" || failed+=("$check")
done
"$checks/tidy.sh" . "$build" || failed+=(tidy)

if [ ${#failed[@]} -gt 0 ]; then
    echo "gate: FAILED: ${failed[*]}"
    exit 1
fi
echo "gate: all checks passed"
