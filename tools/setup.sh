# Shared by ./run and ./test: what is missing is installed, then built. Sourced from the top folder.

# install_packages GROUP...: the Debian packages of the groups that are not there yet.
install_packages() {
    local wanted missing=() name status
    wanted=$(awk -v groups=" $* " '!/^#/ && NF == 2 && index(groups, " " $1 " ") {print $2}' tools/packages.txt)
    for name in $wanted; do
        status=$(dpkg-query -W -f '${Status}' "$name" 2>/dev/null || true)
        [ "$status" = "install ok installed" ] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing and only root may install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null
}

# build_preset PRESET TARGET...: configures once, then builds.
build_preset() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset" --target "$@"
}

# lay_out_application BUILD FOLDER: the program and its pictures anew; a person's stores stay as they are.
lay_out_application() {
    local build=$1 folder=$2 store
    mkdir -p "$folder/images"
    install -m 755 "$build/app/Brindlepost" "$folder/Brindlepost"
    install -m 755 "$build"/platform/webengine/*.so "$folder/"
    cp -u "$build"/images/*.bmp "$build"/images/*.png "$folder/images/"
    for store in dbMedia dbFavs dbHistory dbLogin; do
        if [ ! -e "$folder/$store.mdb" ]; then
            install -m 600 "$build/stores/$store.mdb" "$folder/$store.mdb"
        fi
    done
}
