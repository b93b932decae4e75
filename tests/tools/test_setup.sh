#!/usr/bin/env bash
# What ./run does before it starts the program: which packages it asks for, and what it copies.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source tools/setup.sh

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

fail() {
    echo "$1" >&2
    exit 1
}

expect() {  # what, wanted, found
    [ "$2" = "$3" ] || fail "$1: expected '$2', got '$3'"
}

# A stand-in that knows three packages of four, one of them taken away but for its settings.
mkdir "$place/bin"
cat > "$place/bin/dpkg-query" <<'END'
#!/usr/bin/env bash
echo asked >> "$ASKED"
printf '%s\n' "one install ok installed" "two deinstall ok config-files" "one-more install ok installed"
exit 1
END
chmod +x "$place/bin/dpkg-query"
export ASKED="$place/asked"
packages_of() { printf '%s\n' one two one-more three; }
found=$(PATH="$place/bin:$PATH" missing_packages any | tr '\n' ' ')
expect "what is missing" "two three " "$found"
expect "questions for four packages" 1 "$(wc -l < "$ASKED")"

packages_of() { printf '%s\n' one one-more; }
expect "what is missing of what is there" "" "$(PATH="$place/bin:$PATH" missing_packages any)"

# A build of the size of a few words.
build="$place/build"
folder="$place/folder"
mkdir -p "$build"/{app,platform/decoder,platform/linux,platform/webengine,images,stores}
for file in app/Brindlepost platform/decoder/brindlepost-media platform/linux/brindlepost-files platform/webengine/pages.so \
    images/back.png images/tab.bmp stores/dbMedia.mdb stores/dbFavs.mdb stores/dbHistory.mdb stores/dbLogin.mdb; do
    echo first > "$build/$file"
done
lay_out_application "$build" "$folder"
echo "a user's" > "$folder/dbMedia.mdb"
before=$(stat -c '%n %i %Y' "$folder"/*)
lay_out_application "$build" "$folder"
expect "a second time" "$before" "$(stat -c '%n %i %Y' "$folder"/*)"

echo second > "$build/app/Brindlepost"
lay_out_application "$build" "$folder"
expect "the program" second "$(cat "$folder/Brindlepost")"
expect "who may start it" 755 "$(stat -c %a "$folder/Brindlepost")"
expect "the user's store" "a user's" "$(cat "$folder/dbMedia.mdb")"
