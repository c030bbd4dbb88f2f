#!/usr/bin/env bash
# update_translations.sh [check]: takes the texts of the program over into the sources of its translations. New
# ones are marked as unfinished there, which a test refuses. With "check" it changes nothing and fails when
# there is something to take over.
set -euo pipefail
cd "$(dirname "$0")/.."

update() {
  /usr/lib/qt6/bin/lupdate -silent -I . -locations none -no-obsolete platform app -ts "$@"
}

if [ "${1:-}" != check ]; then
  update resources/translations/*.ts
  exit
fi
copies=$(mktemp -d)
trap 'rm -r "$copies"' EXIT
cp resources/translations/*.ts "$copies"
update "$copies"/*.ts
diff -r resources/translations "$copies" || { echo "Run tools/update_translations.sh and translate." >&2; exit 1; }
