#!/usr/bin/env bash
# coverage.sh BUILD: prints the line coverage of the core from a build folder that was configured with
# LEXIFORM_COVERAGE and whose tests have run; fails when the core is covered below 90 %, or the
# analysis below 95 %.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."

# Threads that count the same branch at once can leave it a negative count, which gcovr cannot read.
report() {
  gcovr --root . "$build" --gcov-ignore-parse-errors --exclude '.*tests/.*' --exclude-throw-branches \
    -j "$(nproc)" "$@"
}
core='(base|linguistics|analysis|ports|document|app|platform/linguistics)/'
report --filter "$core" --fail-under-line 90 --txt -
report --filter 'analysis/' --fail-under-line 95 --txt - | tail -n 3
