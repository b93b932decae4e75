# Shared by ./run and ./test: what is missing is installed, then built. Sourced from the top folder.

# packages_of GROUP...: the Debian packages of the groups.
packages_of() {
    awk -v groups=" $* " '!/^#/ && NF == 2 && index(groups, " " $1 " ") {print $2}' tools/packages.txt
}

# list_packages GROUP...: the same for a help text.
list_packages() {
    packages_of "$@" | fmt -w 100 | sed 's/^/      /'
}

# missing_packages GROUP...: those of the groups that are not installed. They are asked for in one question: its answer is
# a list, and one process for each of them took longer than all the rest of a start that has nothing to do.
missing_packages() {
    local wanted there name
    mapfile -t wanted < <(packages_of "$@")
    there=$(dpkg-query -W -f '${Package} ${Status}\n' "${wanted[@]}" 2>/dev/null || true)
    for name in "${wanted[@]}"; do
        [[ $'\n'$there$'\n' == *$'\n'"$name install ok installed"$'\n'* ]] || echo "$name"
    done
}

# install_packages GROUP...: the Debian packages of the groups that are not there yet.
install_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "These packages are missing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Only root may install them." >&2
            return 1
        fi
        as_root=(sudo)
    fi
    # Nothing that is there is taken away for them: a package may exclude another one, as sound servers do.
    local install=("${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive
        apt-get install --no-install-recommends --no-remove)
    "${as_root[@]}" apt-get update -qq
    local needed
    if ! needed=$("${install[@]}" -qq --print-uris "${missing[@]}"); then
        echo "They cannot be installed beside what is there; nothing is taken away for them." >&2
        return 1
    fi
    awk 'NF {size += $3; ++packages}
         END {printf "With what they need: %d packages, %.0f MB to download.\n", packages, size / 1e6}' <<<"$needed"
    if [ -t 0 ] && [ -t 1 ]; then
        local answer
        read -r -p "Install them? [Y/n] " answer
        [[ "$answer" =~ ^([Yy].*)?$ ]] || return 1
    fi
    "${install[@]}" -y -qq "${missing[@]}" >/dev/null
}

# build_preset PRESET TARGET...: configures once, then builds.
build_preset() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset" --target "$@"
}

# lay_out_application BUILD FOLDER: what changed of the program and its pictures is replaced; stores that are there stay as
# they are.
lay_out_application() {
    local build=$1 folder=$2 store
    mkdir -p "$folder/images"
    install -C -m 755 "$build/app/Brindlepost" "$folder/Brindlepost"
    install -C -m 755 "$build/platform/decoder/brindlepost-media" "$folder/brindlepost-media"
    install -C -m 755 "$build/platform/linux/brindlepost-files" "$folder/brindlepost-files"
    install -C -m 755 "$build"/platform/webengine/*.so "$folder/"
    cp -u "$build"/images/*.bmp "$build"/images/*.png "$folder/images/"
    for store in dbMedia dbFavs dbHistory dbLogin; do
        if [ ! -e "$folder/$store.mdb" ]; then
            install -m 600 "$build/stores/$store.mdb" "$folder/$store.mdb"
        fi
    done
}
