#!/usr/bin/env bash
# Installs what is missing, builds, and scans the given folders for duplicates; without a folder, a small sample made on
# the spot. Options before the folders are passed on to "mirrix-cli scan".
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

"$root/scripts/install-deps.sh" >&2
(
    cd "$root"
    [ -f build/release/build.ninja ] || cmake --preset release -DMIRRIX_TESTS=OFF -DMIRRIX_BENCH=OFF >/dev/null
    cmake --build --preset release --target mirrix-cli >/dev/null
) || {
    echo "The build failed; run: cmake --build --preset release" >&2
    exit 1
}

make_sample() {
    mkdir -p "$1/Pictures/2023" "$1/Downloads"
    printf 'a picture, say\n' >"$1/Pictures/2023/beach.jpg"
    cp "$1/Pictures/2023/beach.jpg" "$1/Downloads/beach (1).jpg"
    cp "$1/Pictures/2023/beach.jpg" "$1/Downloads/beach.jpg"
    printf 'a letter\n' >"$1/Downloads/letter.txt"
}

if [ $# -eq 0 ]; then
    sample=$(mktemp -d)
    trap 'rm -rf "$sample"' EXIT
    make_sample "$sample"
    echo "There is no window yet, and no folder was given: this is the console scan of a small sample." >&2
    "$root/build/release/bin/mirrix-cli" scan --no-cache "$sample"
else
    echo "There is no window yet: this is the console scan." >&2
    exec "$root/build/release/bin/mirrix-cli" scan "$@"
fi
