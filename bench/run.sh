#!/usr/bin/env bash
# Builds the benchmark programs, measures the viewer beside its peers and prints a table in Markdown.
# Data is made in a temporary directory (under TMPDIR) and deleted at the end. See bench/README.md.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)

"$here/setup.sh" bench >&2
(cd "$here" && cmake --preset bench >/dev/null && cmake --build --preset bench >&2)

data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
python3 -B "$here/bench/measure.py" "$here/build-bench" "$data"
