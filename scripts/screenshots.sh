#!/usr/bin/env bash
# Takes the pictures of the window that the documents show, under a virtual display.
#   screenshots.sh             docs/screenshots: both themes, English and Chinese
#   screenshots.sh FOLDER      the same and at 200 % into FOLDER, for looking at
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(mkdir -p "${1:-$root/docs/screenshots}" && cd "${1:-$root/docs/screenshots}" && pwd)

"$root/scripts/install-deps.sh" --screenshots
cd "$root"
[ -f build/dev/build.ninja ] || cmake --preset dev >/dev/null
cmake --build --preset dev --target mirrix_screenshots

take() { xvfb-run -a -s "-screen 0 2560x1700x24" build/dev/bin/mirrix_screenshots "$@" 2>/dev/null; }
for theme in light dark; do
    for language in en zh_CN; do
        take "$folder" "$theme" "$language"
        if [ $# -gt 0 ]; then
            mkdir -p "$folder/200"
            QT_SCALE_FACTOR=2 take "$folder/200" "$theme" "$language"
        fi
    done
done
ls "$folder"
