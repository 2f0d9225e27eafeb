#!/usr/bin/env bash
# Builds the program and runs it with the given arguments. Without arguments it shows the sample
# reports, one window after the other; with no display it exports them, as pictures, PDF and text,
# to out/.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

"$here/setup.sh"
(cd "$here" && cmake --preset release -DQOR_TESTS=OFF >/dev/null && cmake --build --preset release)

if [ $# -gt 0 ]; then
  exec "$here/build/qorutlview" "$@"
fi

# Each sample has a code page of its own, so none may find the settings of the one before.
show_samples() {
  local place
  place=$(mktemp -d)
  trap "rm -rf '$place'" EXIT
  ln -s "$here/samples/pictures" "$place/pictures"
  cd "$place"
  echo "Closing a window opens the next sample; Ctrl+C here ends the show."
  while IFS=$'\t' read -r report codepage <&3; do
    rm -f QorUtlView.vset
    "$here/build/qorutlview" -f "$here/samples/$report" -codepage "$codepage" -caption "$report"
  done 3< "$here/samples/samples.list"
}

export_samples() {
  mkdir -p "$here/out"
  cd "$here/samples"
  while IFS=$'\t' read -r report codepage; do
    for extension in png pdf rtf txt xlsx; do
      "$here/build/qorutlview" -f "$report" -codepage "$codepage" \
        -export "$here/out/${report%.txt}.$extension"
    done
  done < samples.list
  echo "The sample reports stand in $here/out:"
  ls "$here/out"
}

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  show_samples
else
  export_samples
fi
