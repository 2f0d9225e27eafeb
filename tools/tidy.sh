#!/usr/bin/env bash
# Runs the checks of .clang-tidy over src/, as build/ compiles it; fails where they find anything.
#
#   tools/tidy.sh                 all of it: some minutes
#   tools/tidy.sh FILE...         these
#   tools/tidy.sh --recent N [S]  those that the last N commits touched, the newest first, for S
#                                 seconds at the most
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=0
if [ "${1:-}" = --recent ]; then
  seconds=${3:-0}
  mapfile -t files < <(git log -n "$2" --name-only --format= -- 'src/*.cpp' 2>/dev/null |
    awk '!seen[$0]++')
elif [ $# -gt 0 ]; then
  files=("$@")
else
  mapfile -t files < <(git ls-files 'src/*.cpp')
fi

# A file that is gone, or that this build leaves out, has nothing to check.
known=()
for file in "${files[@]}"; do
  [ -e "$file" ] && grep -q "/$file\"" build/compile_commands.json && known+=("$file")
done
[ ${#known[@]} -gt 0 ] || exit 0

check() {
  [ "$2" -eq 0 ] || [ "$(date +%s)" -lt "$2" ] || { echo "not checked, no time left: $1"; return 0; }
  clang-tidy --quiet -p build --extra-arg=-Wno-unknown-warning-option --warnings-as-errors='*' \
    "$1" 2>/dev/null
}
export -f check
until=$((seconds > 0 ? $(date +%s) + seconds : 0))
printf '%s\0' "${known[@]}" | xargs -0 -P "$(nproc)" -I{} bash -c 'check "$1" "$2"' _ {} "$until"
