#!/usr/bin/env bash
# clang-format would change nothing.
set -euo pipefail
cd "$(dirname "$0")/../.."
find src tests fuzz bench -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run --Werror
