#!/usr/bin/env bash
# Builds the program and runs it with the given arguments. Without arguments it exports the sample
# reports, as pictures, PDF and text, to out/.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

"$here/setup.sh"
(cd "$here" && cmake --preset release -DQOR_TESTS=OFF >/dev/null && cmake --build --preset release)

if [ $# -gt 0 ]; then
  exec "$here/build/qorutlview" "$@"
fi

mkdir -p "$here/out"
cd "$here/samples"
while IFS=$'\t' read -r report codepage; do
  for extension in png pdf txt; do
    "$here/build/qorutlview" -f "$report" -codepage "$codepage" \
      -export "$here/out/${report%.txt}.$extension"
  done
done < samples.list
echo "The sample reports stand in $here/out:"
ls "$here/out"
