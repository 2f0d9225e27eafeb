#!/usr/bin/env bash
# A file includes its own layer and those below it. Only the windows and platform/qt know Qt, and
# nothing but the files that say so, or stand in a system's own room, knows POSIX.
set -euo pipefail
cd "$(dirname "$0")/../../src"

layers=(base language platform document render barcode settings export window_model windows app)
above='^$'
for ((i = ${#layers[@]} - 1; i >= 0; --i)); do
  wrong+=$(grep -rnE "^#include \"($above)/" "${layers[$i]}" || true)
  above+="|${layers[$i]}"
done
wrong+=$(grep -rlE '^#include <Q' . | grep -vE '^\./(windows|platform/qt)/' || true)
wrong+=$(grep -rlE '^#include <(unistd|fcntl|spawn|dlfcn|iconv|langinfo|sys/.*)\.h>' . |
  grep -vE '_posix\.cpp$|/(cups|x11)/' || true)
[ -z "$wrong" ] || { echo "$wrong"; exit 1; }
