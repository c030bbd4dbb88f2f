#!/usr/bin/env bash
# check.sh quick: layout, layers and scripts, in seconds.
# check.sh tidy:  clang-tidy over every source, in minutes.
# check.sh cppcheck: cppcheck over every source, in a minute or two.
set -euo pipefail
cd "$(dirname "$0")/.."

# The files matching the patterns that a commit would hold; one that is deleted is no source.
sources() {
  git ls-files --cached --others --exclude-standard "$@" | while read -r file; do
    [ ! -e "$file" ] || echo "$file"
  done
}

quick() {
  sources '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
  python3 tools/check_layers.py
  for script in run test .ci/run tools/*.sh tools/*/*.sh; do bash -n "$script"; done
}

# The files that a build folder compiles but those that Qt has written.
compiled() {
  python3 - "$1" <<'PYTHON'
import json, sys
commands = json.load(open(sys.argv[1] + "/compile_commands.json"))
print(*sorted({c["file"] for c in commands if "_autogen/" not in c["file"]}), sep="\n")
PYTHON
}

# In a build folder of its own: clang-tidy cannot read the headers that GCC has precompiled.
tidy() {
  cmake --preset release -B build/tidy -DLEXIFORM_TESTS=OFF -DLEXIFORM_BENCHMARKS=OFF \
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
  # A folder's sources compiled as one are headers to it.
  local folders='(base|linguistics|analysis|ports|document|app|platform|tools)'
  compiled build/tidy | xargs -P "$(nproc)" -n 1 \
    clang-tidy -p build/tidy --quiet --checks=-bugprone-suspicious-include --header-filter="$folders/.*\.(h|cpp)$" 2>/dev/null
}

# The desktop by itself: what Qt takes for words of its own are names elsewhere.
cppcheck() {
  local options=(--std=c++20 --language=c++ --quiet --enable=warning,style,performance,portability -j "$(nproc)"
    -I . --suppressions-list=tools/cppcheck.suppressions --error-exitcode=1)
  command cppcheck "${options[@]}" -i platform/qt base linguistics analysis ports document app platform tools
  command cppcheck "${options[@]}" --library=qt platform/qt
}

"${1:-quick}"
