#!/usr/bin/env bash
# Installs what is missing, builds, and opens the window with the given folders as scan locations. Without a display it
# runs the console scan of these folders instead (without any, of a small sample made on the spot); options before the
# folders are then passed on to "mirrix-cli scan".
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

program=Mirrix
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    program=mirrix-cli
    echo "No display here: this is the console scan." >&2
fi

"$root/scripts/install-deps.sh" >&2
(
    cd "$root"
    [ -f build/release/build.ninja ] || cmake --preset release -DMIRRIX_TESTS=OFF -DMIRRIX_BENCH=OFF >/dev/null
    cmake --build --preset release --target "$program" >/dev/null
) || {
    echo "The build failed; run: cmake --build --preset release" >&2
    exit 1
}

if [ $program = Mirrix ]; then
    exec "$root/build/release/bin/Mirrix" "$@"
fi

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
    echo "No folder was given, so it looks at a small sample." >&2
    "$root/build/release/bin/mirrix-cli" scan --no-cache "$sample"
else
    exec "$root/build/release/bin/mirrix-cli" scan "$@"
fi
