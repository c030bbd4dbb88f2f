#!/usr/bin/env bash
# check.sh quick: layout, layers and scripts, in seconds.
# check.sh tidy:  clang-tidy over every source, in minutes; needs build/release configured.
set -euo pipefail
cd "$(dirname "$0")/.."

# The files matching the patterns that a commit would hold; one that is deleted is no source.
sources() { git ls-files --cached --others --exclude-standard "$@" | while read -r file; do [ ! -e "$file" ] || echo "$file"; done; }

quick() {
  sources '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
  python3 tools/check_layers.py
  for script in run test .ci/run tools/*.sh; do bash -n "$script"; done
}

tidy() {
  local config=build/release/compile_commands.json
  [ -f "$config" ] || cmake --preset release >/dev/null
  sources '*.cpp' | grep -vE '^tests/' |
    xargs -P "$(nproc)" -n 4 clang-tidy -p build/release --quiet 2>/dev/null
}

"${1:-quick}"
