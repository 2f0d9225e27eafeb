#!/usr/bin/env bash
# A file includes its own layer and those below it, and so do the rooms of the platform. Only the
# windows and platform/qt know Qt, and nothing but the files that say so, or stand in a system's own
# room, knows POSIX.
set -euo pipefail
cd "$(dirname "$0")/../../src"

wrong=
# Names what includes anything of the layers behind its own.
check() {
  local above='^$' rows=("$@")
  for ((i = $# - 1; i >= 0; --i)); do
    wrong+=$(grep -rnE "^#include \"($above)/" "${rows[$i]}" || true)
    above+="|${rows[$i]}"
  done
}
check base language platform document barcode render search settings export window_model windows app bulk filter
check platform/{system,walls,fonts,pictures,qt,x11,canvas,pdf,print,cups,harfbuzz,workbook,gsf,rtf}
wrong+=$(grep -rlE '^#include <Q' . | grep -vE '^\./(windows|platform/qt)/' || true)
wrong+=$(grep -rlE '^#include <(unistd|fcntl|spawn|getopt|sched|dlfcn|link|iconv|langinfo|poll|signal|pwd|sys/.*)\.h>' . |
  grep -vE '_posix\.(cpp|h)$|/(cups|x11)/' || true)
[ -z "$wrong" ] || { echo "$wrong"; exit 1; }
