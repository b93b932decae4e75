#!/usr/bin/env bash
# clang-format and clang-tidy over the whole tree: "format", "tidy", or both.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
what="${1:-both}"

sources() { git ls-files --cached --others --exclude-standard "$@"; }

if [ "$what" != tidy ]; then
    sources '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
    echo "clang-format: clean"
fi
if [ "$what" != format ]; then
    sources '*.cpp' | xargs -P 2 -n 4 clang-tidy --quiet -p build/debug 2>/dev/null
    echo "clang-tidy: clean"
fi
