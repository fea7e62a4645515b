#!/usr/bin/env bash
# Takes pictures of all windows under a virtual display.
#   screenshots.sh           docs/screenshots: what the documents show, in English, both themes
#   screenshots.sh FOLDER    all languages and both themes into FOLDER, and English, German and Japanese at 200 %
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(mkdir -p "${1:-$root/docs/screenshots}" && cd "${1:-$root/docs/screenshots}" && pwd)

"$root/scripts/install-deps.sh" --screenshots
cd "$root"
[ -f build/dev/build.ninja ] || cmake --preset dev >/dev/null
cmake --build --preset dev --target mirrix_screenshots

# take FOLDER THEME LANGUAGE [PAGE...]
take() { xvfb-run -a -s "-screen 0 2600x1700x24" build/dev/bin/mirrix_screenshots "$@" 2>/dev/null; }

if [ $# -eq 0 ]; then
    for theme in light dark; do
        take "$folder" "$theme" en locations rules-1 results-1
    done
else
    mkdir -p "$folder/200"
    for theme in light dark; do
        for language in zh_CN $(ls resources/translations | sed -n 's/^mirrix_\(.*\)\.ts$/\1/p'); do
            take "$folder" "$theme" "$language"
        done
        for language in en de ja; do
            QT_SCALE_FACTOR=2 take "$folder/200" "$theme" "$language"
        done
    done
fi
ls "$folder"
