#!/usr/bin/env bash
# coverage.sh: builds everything but the desktop with coverage, runs its tests, prints the line
# coverage of the core and fails when the analysis is covered below 95 %.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/coverage
log=$(mktemp)
trap 'rm -f "$log"' EXIT

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLEXIFORM_QT=OFF -DLEXIFORM_COVERAGE=ON \
  -DLEXIFORM_BENCHMARKS=OFF -DLEXIFORM_WERROR=ON >"$log" 2>&1 && cmake --build "$build" >>"$log" 2>&1 ||
  { tail -n 60 "$log"; exit 1; }
find "$build" -name '*.gcda' -delete
ctest --test-dir "$build" --output-on-failure -j "$(nproc)" -LE fuzz >"$log" 2>&1 || { tail -n 60 "$log"; exit 1; }
tail -n 4 "$log"

report() { gcovr --root . "$build" --exclude '.*tests/.*' --exclude-throw-branches "$@"; }
report --filter '(base|linguistics|analysis|ports|document|platform/linguistics)/' --txt /dev/stdout
report --filter 'analysis/' --fail-under-line 95 --txt /dev/null
