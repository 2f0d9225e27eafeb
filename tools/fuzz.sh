#!/usr/bin/env bash
# Builds the fuzzers and runs each on its seeds, two at a time; fails where one finds anything, and
# keeps the input that does in build-fuzz/found/. Corpora grow in build-fuzz/corpus/.
#
#   tools/fuzz.sh SECONDS            all of them, so long each
#   tools/fuzz.sh SECONDS TARGET...  these: page, sheet, ...
#   QOR_FUZZ_WALL=1 tools/fuzz.sh SECONDS ...
#                                    behind the wall of an export: no input is kept, no leak seen
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:?the seconds of each fuzzer}
shift
./setup.sh fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

targets=("$@")
[ $# -gt 0 ] || mapfile -t targets < <(ls tests/seeds)

fuzz() {
  local corpus=build-fuzz/corpus/$2
  mkdir -p "$corpus" build-fuzz/found
  local leaks=1
  [ -z "${QOR_FUZZ_WALL:-}" ] || leaks=0
  # What fontconfig keeps to the end is no leak of ours.
  ASAN_OPTIONS=detect_leaks=$leaks LSAN_OPTIONS=suppressions=tests/lsan.supp:print_suppressions=0 \
    "build-fuzz/fuzz_$2" -max_total_time="$1" -max_len=20000 -timeout=60 -rss_limit_mb=4096 \
    -dict=fuzz/page.dict -artifact_prefix="build-fuzz/found/$2-" \
    "$corpus" "tests/seeds/$2" >"build-fuzz/$2.log" 2>&1 ||
    { tail -n 40 "build-fuzz/$2.log"; echo "fuzz_$2 found something"; return 1; }
  grep -h 'DONE' "build-fuzz/$2.log" | sed "s/^/fuzz_$2: /"
}
export -f fuzz
printf '%s\0' "${targets[@]}" | xargs -0 -P 2 -I{} bash -c 'fuzz "$1" "$2"' _ "$seconds" {}
