#!/usr/bin/env bash
# install-packages.sh GROUP...: installs what is missing of the groups that packages.txt names, and
# says in one line what and why. Silent when nothing is missing.
set -euo pipefail
cd "$(dirname "$0")/.."

missing=()
for group in "$@"; do
  while read -r package; do
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done < <(awk -v group="$group" '$1 == group { print $2 }' packages.txt)
done
[ ${#missing[@]} -gt 0 ] || exit 0

if ! command -v apt-get >/dev/null; then
  echo "Lexiform needs these packages, and there is no apt-get to install them: ${missing[*]}" >&2
  exit 1
fi
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Installing needs root or sudo: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing what Lexiform needs to $(IFS=,; echo "$*" | sed 's/,/, /g; s/desktop/show its windows/'): ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update &&
       "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
