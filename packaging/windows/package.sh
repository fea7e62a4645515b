#!/usr/bin/env bash
# Makes the Windows packages: a portable zip and an installer.
#   package.sh [FOLDER]     writes into FOLDER (default: dist)
# Needs what scripts/install-deps.sh --windows --packages installs, and the prefix with Qt for Windows ($WINDOWS_SDK,
# default .deps/winsdk).
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cd "$root"
mkdir -p "${1:-dist}"
out=$(cd "${1:-dist}" && pwd)
sdk=${WINDOWS_SDK:-$root/.deps/winsdk}
version=$(sed -n 's/^project(Mirrix VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

./scripts/install-deps.sh --windows --packages
cmake --preset windows >/dev/null
cmake --build --preset windows --target Mirrix mirrix-cli

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
app=$stage/Mirrix
mkdir -p "$app/platforms" "$app/imageformats" "$app/translations" "$app/licences"

cp build/windows/bin/Mirrix.exe build/windows/bin/mirrix-cli.exe "$app"
cp "$sdk/qt/plugins/platforms/qwindows.dll" "$app/platforms"
cp "$sdk"/qt/plugins/imageformats/*.dll "$app/imageformats"
cp "$sdk/bin/libmediainfo.dll" "$app/MediaInfo.dll" # loaded at run time, under this name
gcc=$(dirname "$(x86_64-w64-mingw32-gcc-posix -print-libgcc-file-name)")
packaging/windows/collect.py "$app" "$sdk/qt/bin" "$sdk/bin" "$gcc" /usr/x86_64-w64-mingw32/lib
find "$app" -name '*.[de][lx][le]' -exec x86_64-w64-mingw32-strip --strip-unneeded {} +
printf '[Paths]\nPlugins = .\nTranslations = translations\n' >"$app/qt.conf"

# Qt's own texts, in the languages of the program.
for catalogue in resources/translations/mirrix_*.ts; do
    language=$(basename "$catalogue" .ts)
    language=${language#mirrix_}
    for name in "$language" "${language}_BR"; do
        file=/usr/share/qt6/translations/qtbase_$name.qm
        if [ -f "$file" ]; then
            cp "$file" "$app/translations"
        fi
    done
done
packaging/windows/licences.sh "$app/licences"
cp README.md "$app"

# The uninstaller removes these files and no others; folders only when they are empty.
removal=$stage/removal.nsh
(
    cd "$app"
    find . -type f -printf '%P\n' | sort | sed 's|/|\\|g; s|.*|Delete "$INSTDIR\\&"|'
    find . -mindepth 1 -depth -type d -printf '%P\n' | sed 's|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|'
) >"$removal"
setup=$out/Mirrix-$version-win64-setup.exe
rm -f "$setup"
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DSTAGE="$app" -DREMOVAL="$removal" -DOUTPUT="$setup" \
    -DSIZE_KIB="$(du -sk "$app" | cut -f1)" -DICON="$root/build/windows/resources/mirrix.ico" \
    packaging/windows/installer.nsi

: >"$app/Mirrix.portable"
zip=$out/Mirrix-$version-win64-portable.zip
rm -f "$zip"
(cd "$stage" && cmake -E tar cf "$zip" --format=zip Mirrix)
ls -l "$out"
