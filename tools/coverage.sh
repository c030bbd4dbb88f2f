#!/usr/bin/env bash
# coverage.sh BUILD: prints the line coverage of the core from a build folder that was configured with
# LEXIFORM_COVERAGE and whose tests have run; fails when the analysis is covered below 95 %.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."

report() { gcovr --root . "$build" --exclude '.*tests/.*' --exclude-throw-branches -j "$(nproc)" "$@"; }
report --filter '(base|linguistics|analysis|ports|document|app|platform/linguistics)/' --txt -
report --filter 'analysis/' --fail-under-line 95 --txt /dev/null
