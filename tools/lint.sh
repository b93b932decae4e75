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
    # A header compiled by another compiler is of no use here; each unit includes what it needs.
    mkdir -p build/lint
    sed -E 's/ -fpch-preprocess//; s/ -Winvalid-pch -include [^ ]+//' build/debug/compile_commands.json \
        >build/lint/compile_commands.json
    sources '*.cpp' | xargs -P 2 -n 4 clang-tidy --quiet -p build/lint 2>/dev/null
    echo "clang-tidy: clean"
fi
