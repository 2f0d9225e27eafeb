#!/usr/bin/env bash
# Builds everything and runs every test: as users run it, and again under the address and
# undefined-behaviour sanitizers. Exits non-zero on a failure.
set -euo pipefail
cd "$(dirname "$0")"

./setup.sh test
for preset in asan release; do
  echo "== $preset"
  cmake --preset "$preset" -DQOR_TESTS=ON >/dev/null
  cmake --build --preset "$preset"
  # A test that hangs is ended, so that the run can name it.
  ctest --preset "$preset" -j "$(nproc)" --timeout 600
done

# What was changed lately; tools/tidy.sh alone looks at everything.
tools/tidy.sh --recent 10 100
