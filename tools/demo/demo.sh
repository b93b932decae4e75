#!/usr/bin/env bash
# Plays the whole story by itself: a display, a sound server, songs and pages of its own; the summary is
# build/demo/index.html.  demo.sh [BUILD_FOLDER [OUTPUT_FOLDER]]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
build="${1:-build/program}"
output="${2:-build/demo}"

# Root hands the stage to nobody, who writes into a folder of its own; the result comes back here.
mkdir -p "$output"
output="$(cd "$output" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
if [ "$(id -u)" -eq 0 ]; then
    chown 65534:65534 "$work"
fi
status=0
/usr/bin/python3 tools/demo/demo.py "$build" "$work" || status=$?
rm -rf "${output:?}"/*
cp -r "$work"/. "$output"/
chmod -R u+rwX,go+rX "$output"
echo "The summary: $output/index.html"
exit "$status"
