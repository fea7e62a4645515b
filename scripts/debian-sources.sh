# Source packages of this Debian release, whose signatures and checksums apt checks. To be read by scripts that set
# `work`, a folder for sources and apt's lists. Needs dpkg-dev.

# apt with the machine's own sources, for source packages and in a folder of its own, so that nothing needs root.
own_apt() {
    apt-get -q -o Dir::Etc::SourceList="$work/apt/sources.list" -o Dir::Etc::SourceParts="$work/apt/sources.list.d" \
        -o Dir::State::Lists="$work/apt/lists" -o APT::Sandbox::User="$(id -un)" "$@"
}

prepare_apt() {
    mkdir -p "$work/apt/sources.list.d" "$work/apt/lists/partial" "$work/source"
    local file
    sed -nE 's/^deb(-src)? /deb-src /p' /etc/apt/sources.list >"$work/apt/sources.list" 2>/dev/null || true
    for file in /etc/apt/sources.list.d/*; do
        if [[ $file = *.sources ]]; then
            sed 's/^Types:.*/Types: deb-src/' "$file" >"$work/apt/sources.list.d/$(basename "$file")"
        elif [[ $file = *.list ]]; then
            sed -nE 's/^deb(-src)? /deb-src /p' "$file" >"$work/apt/sources.list.d/$(basename "$file")"
        fi
    done
    own_apt update >/dev/null || true # a source without source packages is no harm
}

# Unpacks a source package into a fresh folder and prints its path: with Debian's patches, or where a mirror has only the
# original archive, that alone. apt has checked either.
source_of() {
    local folder=$work/source/$1
    rm -rf "$folder"
    mkdir -p "$folder"
    cd "$folder"
    if ! own_apt source "$1" >&2 && ! own_apt source "$1" >&2; then
        echo "$1: without Debian's patches" >&2
        find . -maxdepth 1 -name '*.orig.tar.*' ! -name '*.asc' -exec tar xf {} \; >&2
    fi
    find "$folder" -mindepth 1 -maxdepth 1 -type d | grep .
}
